"""Prints the accessibility tree of a program: one line of JSON per object, with the roles of its
ancestors.

    atspi_peer.py PROGRAM
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def show(node, path):
    states = node.get_state_set()
    actions = node.get_action_iface()
    line = {"name": node.get_name(), "description": node.get_description(),
            "checked": states.contains(Atspi.StateType.CHECKED), "role": node.get_role_name(), "path": path,
            "showing": states.contains(Atspi.StateType.SHOWING),
            "focused": states.contains(Atspi.StateType.FOCUSED),
            "actions": [actions.get_action_name(i) for i in range(actions.get_n_actions())]
            if actions else []}
    print(json.dumps(line))
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child:
            show(child, path + [line["role"]])


desktop = Atspi.get_desktop(0)
for index in range(desktop.get_child_count()):
    application = desktop.get_child_at_index(index)
    if application and application.get_name() == sys.argv[1]:
        show(application, [])
