"""Stands in for the desktop's notification service: prints each notification as a line of JSON until it is ended."""

import json

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.Notifications"


class Notifications(dbus.service.Object):
    shown = 0

    @dbus.service.method(NAME, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, application, replaces, icon, title, text, actions, hints, timeout):
        self.shown += 1
        urgency = int(hints["urgency"]) if "urgency" in hints else None
        print(json.dumps({"application": application, "title": title, "text": text, "urgency": urgency}), flush=True)
        return dbus.UInt32(self.shown)


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
name = dbus.service.BusName(NAME, bus)
service = Notifications(bus, "/org/freedesktop/Notifications")
print(json.dumps({"ready": True}), flush=True)
GLib.MainLoop().run()
