"""Stands in for logind on the system bus, as root: prints "ready", "held" for each delay lock that it gives and "released"
when one is let go. The line "shut down" on its input begins a shutdown, and "wake up" ends a sleep."""

import os
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.login1"


def say(word):
    print(word, flush=True)


class Manager(dbus.service.Object):
    @dbus.service.method(f"{NAME}.Manager", in_signature="ssss", out_signature="h")
    def Inhibit(self, what, who, why, mode):
        read, write = os.pipe()
        lock = dbus.types.UnixFd(write)  # duplicates the descriptor
        os.close(write)
        GLib.io_add_watch(read, GLib.IO_HUP, self.released)
        say("held" if (what, mode) == ("shutdown", "delay") else f"unexpected {what} {mode}")
        return lock

    @dbus.service.signal(f"{NAME}.Manager", signature="b")
    def PrepareForShutdown(self, begins):
        pass

    @dbus.service.signal(f"{NAME}.Manager", signature="b")
    def PrepareForSleep(self, begins):
        pass

    def released(self, read, _):
        os.close(read)
        say("released")
        return False


def obey(stream, _):
    line = stream.readline()
    if line == "shut down\n":
        manager.PrepareForShutdown(True)
    elif line == "wake up\n":
        manager.PrepareForSleep(False)
    return bool(line)


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SystemBus()
name = dbus.service.BusName(NAME, bus)
manager = Manager(bus, "/org/freedesktop/login1")
GLib.io_add_watch(sys.stdin, GLib.IO_IN, obey)
say("ready")
GLib.MainLoop().run()
