"""Prints the accessibility tree of a program: one line of JSON per object, with the roles of its
ancestors. Or does the first action of a visible object with a certain name.

    atspi_peer.py PROGRAM [NAME]
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def role(node):
    """By its name in earlier releases."""
    return {"button": "push button"}.get(node.get_role_name(), node.get_role_name())


def show(node, path):
    states = node.get_state_set()
    actions = node.get_action_iface()
    line = {"name": node.get_name(), "description": node.get_description(),
            "checked": states.contains(Atspi.StateType.CHECKED), "role": role(node), "path": path,
            "showing": states.contains(Atspi.StateType.SHOWING),
            "focused": states.contains(Atspi.StateType.FOCUSED),
            "actions": [actions.get_action_name(i) for i in range(actions.get_n_actions())]
            if actions else []}
    print(json.dumps(line))
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child:
            show(child, path + [line["role"]])


def act(node, name):
    actions = node.get_action_iface()
    if (node.get_name() == name and actions and actions.get_n_actions() and
            node.get_state_set().contains(Atspi.StateType.SHOWING)):
        return actions.do_action(0)
    children = map(node.get_child_at_index, range(node.get_child_count()))
    return any(act(child, name) for child in children if child)


desktop = Atspi.get_desktop(0)
for index in range(desktop.get_child_count()):
    application = desktop.get_child_at_index(index)
    if application and application.get_name() == sys.argv[1]:
        if len(sys.argv) > 2:
            sys.exit(0 if act(application, sys.argv[2]) else 1)
        show(application, [])
