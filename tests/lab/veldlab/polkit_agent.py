"""An authentication agent for polkit, like a desktop's. It answers the requests for one process.

    polkit_agent.py PID approve|refuse|cancel PASSWORD

Prints "ready" once polkit knows it, then each request as a line of JSON: action, message, identities (user ids).
`approve` gives the password to polkit's own helper, which asks PAM; `refuse` gives a wrong one; `cancel` dismisses the
request. Runs as the user whom polkit asks, until it is ended. Needs python3-gi.
"""

import json
import subprocess
import sys

from gi.repository import Gio, GLib

_HELPER = "/usr/lib/polkit-1/polkit-agent-helper-1"
_PATH = "/org/veldmark/lab/agent"
_INTERFACE = """
<node><interface name="org.freedesktop.PolicyKit1.AuthenticationAgent">
  <method name="BeginAuthentication">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{ss}" direction="in"/><arg type="s" direction="in"/><arg type="a(sa{sv})" direction="in"/>
  </method>
  <method name="CancelAuthentication"><arg type="s" direction="in"/></method>
</interface></node>
"""


def start_time(process: int) -> int:
    with open(f"/proc/{process}/stat", encoding="ascii", errors="replace") as file:
        return int(file.read().rpartition(")")[2].split()[19])


def authenticate(name: str, cookie: str, password: str) -> bool:
    with subprocess.Popen([_HELPER, name], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as helper:
        helper.stdin.write(cookie + "\n")
        helper.stdin.flush()
        for line in helper.stdout:
            if line.startswith("PAM_PROMPT_ECHO_OFF"):
                helper.stdin.write(password + "\n")
                helper.stdin.flush()
            if line.startswith(("SUCCESS", "FAILURE")):
                return line.startswith("SUCCESS")
    return False


def main() -> None:
    process, answer, password = int(sys.argv[1]), sys.argv[2], sys.argv[3]
    bus = Gio.bus_get_sync(Gio.BusType.SYSTEM)

    def on_call(_connection, _sender, _path, _interface, method, arguments, invocation):
        if method != "BeginAuthentication":
            invocation.return_value(None)
            return
        action, message, _icon, _details, cookie, identities = arguments.unpack()
        users = [facts["uid"] for kind, facts in identities if kind == "unix-user"]
        print(json.dumps({"action": action, "message": message, "identities": users}), flush=True)
        if answer == "cancel":
            invocation.return_dbus_error("org.freedesktop.PolicyKit1.Error.Cancelled", "dismissed")
            return
        import pwd

        authenticate(pwd.getpwuid(users[0]).pw_name, cookie, password if answer == "approve" else password + "!")
        invocation.return_value(None)

    interface = Gio.DBusNodeInfo.new_for_xml(_INTERFACE).interfaces[0]
    bus.register_object(_PATH, interface, on_call, None, None)
    subject = ("unix-process", {"pid": GLib.Variant("u", process), "start-time": GLib.Variant("t", start_time(process))})
    bus.call_sync(
        "org.freedesktop.PolicyKit1",
        "/org/freedesktop/PolicyKit1/Authority",
        "org.freedesktop.PolicyKit1.Authority",
        "RegisterAuthenticationAgent",
        GLib.Variant("((sa{sv})ss)", (subject, "en_GB.UTF-8", _PATH)),
        None,
        Gio.DBusCallFlags.NONE,
        -1,
        None,
    )
    print("ready", flush=True)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
