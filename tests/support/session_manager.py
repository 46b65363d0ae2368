"""A session manager (XSMP) for tests. Prints its address, for SESSION_MANAGER; then does what its input says, line by line:

    save      asks the programs to save what is open, as before a logout that may still be called off; prints "saved"
    die       tells them that the session is over; prints "closed" for each that has gone
"""

import ctypes
import os
import select
import sys

ICE, SM = ctypes.CDLL("libICE.so.6"), ctypes.CDLL("libSM.so.6")
P, I = ctypes.c_void_p, ctypes.c_int
CALLBACKS = (
    "register_client",
    "interact_request",
    "interact_done",
    "save_yourself_request",
    "save_yourself_phase2_request",
    "save_yourself_done",
    "close_connection",
    "set_properties",
    "delete_properties",
    "get_properties",
)
SAVE_BOTH, STYLE_ANY = 2, 2


class Callback(ctypes.Structure):
    _fields_ = [("function", P), ("data", P)]


class Callbacks(ctypes.Structure):
    _fields_ = [(name, Callback) for name in CALLBACKS]


for name, result, arguments in (
    ("SmsGenerateClientID", P, [P]),
    ("SmsRegisterClientReply", I, [P, P]),
    ("SmsSaveYourself", None, [P, I, I, I, I]),
    ("SmsDie", None, [P]),
    ("SmsGetIceConnection", P, [P]),
    ("SmsCleanUp", None, [P]),
    ("SmsSaveComplete", None, [P]),
    ("SmsInitialize", I, [ctypes.c_char_p, ctypes.c_char_p, P, P, P, I, P]),
):
    function = getattr(SM, name)
    function.restype, function.argtypes = result, arguments
for name, result, arguments in (
    ("IceListenForConnections", I, [P, P, I, P]),
    ("IceGetListenConnectionNumber", I, [P]),
    ("IceSetHostBasedAuthProc", None, [P, P]),
    ("IceComposeNetworkIdList", ctypes.c_char_p, [I, P]),
    ("IceAcceptConnection", P, [P, P]),
    ("IceConnectionNumber", I, [P]),
    ("IceConnectionStatus", I, [P]),
    ("IceProcessMessages", I, [P, P, P]),
    ("IceSetShutdownNegotiation", None, [P, I]),
    ("IceCloseConnection", I, [P]),
):
    function = getattr(ICE, name)
    function.restype, function.argtypes = result, arguments

clients: list[int] = []
connections: dict[int, int] = {}
gone: set[int] = set()


def say(word):
    print(word, flush=True)


def register(client, data, previous):
    SM.SmsRegisterClientReply(client, previous or SM.SmsGenerateClientID(client))
    clients.append(client)
    say("registered")
    return 1


def saved(client, data, success):
    say("saved")


def closed(client, data, count, reasons):
    connection = SM.SmsGetIceConnection(client)
    clients.remove(client)
    gone.add(connection)
    SM.SmsCleanUp(client)
    ICE.IceSetShutdownNegotiation(connection, 0)
    ICE.IceCloseConnection(connection)
    say("closed")


TYPES = {
    "register_client": (ctypes.CFUNCTYPE(I, P, P, P), register),
    "interact_request": (ctypes.CFUNCTYPE(None, P, P, I), lambda *_: None),
    "interact_done": (ctypes.CFUNCTYPE(None, P, P, I), lambda *_: None),
    "save_yourself_request": (ctypes.CFUNCTYPE(None, P, P, I, I, I, I, I), lambda *_: None),
    "save_yourself_phase2_request": (ctypes.CFUNCTYPE(None, P, P), lambda *_: None),
    "save_yourself_done": (ctypes.CFUNCTYPE(None, P, P, I), saved),
    "close_connection": (ctypes.CFUNCTYPE(None, P, P, I, P), closed),
    "set_properties": (ctypes.CFUNCTYPE(None, P, P, I, P), lambda *_: None),
    "delete_properties": (ctypes.CFUNCTYPE(None, P, P, I, P), lambda *_: None),
    "get_properties": (ctypes.CFUNCTYPE(None, P, P), lambda *_: None),
}
kept = {name: kind(function) for name, (kind, function) in TYPES.items()}


@ctypes.CFUNCTYPE(I, P, P, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(Callbacks), P)
def new_client(client, data, mask, callbacks, reason):
    mask[0] = (1 << len(CALLBACKS)) - 1
    for name in CALLBACKS:
        getattr(callbacks[0], name).function = ctypes.cast(kept[name], P)
    return 1


@ctypes.CFUNCTYPE(I, ctypes.c_char_p)
def let_in(host):
    return 1


@ctypes.CFUNCTYPE(None, P)
def io_error(connection):
    gone.add(connection)  # otherwise libICE ends this process
    say("closed")


def main():
    error = ctypes.create_string_buffer(256)
    if not SM.SmsInitialize(b"lab", b"1", ctypes.cast(new_client, P), None, ctypes.cast(let_in, P), 256, error):
        sys.exit(error.value.decode())
    ICE.IceSetIOErrorHandler.restype, ICE.IceSetIOErrorHandler.argtypes = P, [P]
    ICE.IceSetIOErrorHandler(ctypes.cast(io_error, P))
    count, listening = ctypes.c_int(), ctypes.POINTER(P)()
    if not ICE.IceListenForConnections(ctypes.byref(count), ctypes.byref(listening), 256, error):
        sys.exit(error.value.decode())
    for i in range(count.value):
        ICE.IceSetHostBasedAuthProc(listening[i], ctypes.cast(let_in, P))
    say(ICE.IceComposeNetworkIdList(count, listening).decode())
    doors = {ICE.IceGetListenConnectionNumber(listening[i]): listening[i] for i in range(count.value)}
    while True:
        ready, _, _ = select.select([0, *doors, *connections], [], [])
        for fd in ready:
            if fd == 0:
                obey(os.read(0, 4096).decode())
            elif fd in doors:
                status = ctypes.c_int()
                if connection := ICE.IceAcceptConnection(doors[fd], ctypes.byref(status)):
                    connections[ICE.IceConnectionNumber(connection)] = connection
            elif fd in connections and connections[fd] not in gone:
                ICE.IceProcessMessages(connections[fd], None, None)
        for fd in [fd for fd, connection in connections.items() if connection in gone]:
            gone.discard(connections.pop(fd))


def obey(words):
    if not words:
        sys.exit()
    for word in words.split():
        for client in list(clients):
            if word == "save":
                SM.SmsSaveYourself(client, SAVE_BOTH, 1, STYLE_ANY, 0)
            elif word == "die":
                SM.SmsDie(client)


main()
