"""Prints what a screen reader is told about one application, as JSON: accessible.py PROCESS-ID

A list of its windows, each a node: role, name, description, states (a sorted list of words), value (of what has one),
text (of what is edited or chosen), x, y, width, height (screen coordinates), actions (their names), children. Empty while the application is not there.
Needs the session's bus with its accessibility bus.
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def value_of(node):
    if face := node.get_value_iface():
        return face.get_current_value()
    return None


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1) if node.get_text_iface() else ""


def describe(node, depth=0):
    place = node.get_extents(Atspi.CoordType.SCREEN) if node.get_component_iface() else None
    actions = node.get_action_iface()
    return {
        "role": node.get_role_name(),
        "name": node.get_name() or "",
        "description": node.get_description() or "",
        "states": sorted(state.value_nick for state in node.get_state_set().get_states()),
        "value": value_of(node),
        "text": text_of(node),
        "x": place.x if place else 0,
        "y": place.y if place else 0,
        "width": place.width if place else 0,
        "height": place.height if place else 0,
        "actions": [Atspi.Action.get_action_name(actions, i) for i in range(actions.get_n_actions())] if actions else [],
        "children": [] if depth > 60 else children(node, depth + 1),
    }


def children(node, depth):
    found = []
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            try:
                found.append(describe(child, depth))
            except GLib.Error:
                continue  # it disappeared during the query
    return found


def main():
    wanted = int(sys.argv[1])
    desktop = Atspi.get_desktop(0)
    windows = []  # a Qt program whose desktop theme uses GTK appears twice, once for each toolkit
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        try:
            if application is not None and application.get_process_id() == wanted:
                windows += children(application, 0)
        except GLib.Error:
            continue
    print(json.dumps(windows))


main()
