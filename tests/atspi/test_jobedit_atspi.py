#!/usr/bin/env python3
"""Drives the job editor as a screen reader does: by the names, values and actions that it tells over AT-SPI.

usage: test_jobedit_atspi.py JOBEDIT DIRECTORY

Everything is found by its name or role; nothing by its position, and no widget is touched. The file that the editor saves
is read to see that what was heard is what was done.
"""

import os
import subprocess
import sys
import time

import pyatspi

SECONDS = 30


def nodes(top):
    """The node and all below it."""
    yield top
    try:
        children = [top.getChildAtIndex(index) for index in range(top.childCount)]
    except Exception:  # it went while it was asked
        return
    for child in children:
        if child is not None:
            yield from nodes(child)


def wait(what, look):
    """What `look` finds, once it finds something."""
    end = time.monotonic() + SECONDS
    while time.monotonic() < end:
        try:
            found = look()
        except Exception:
            found = None
        if found:
            return found
        time.sleep(0.1)
    sys.exit(f"FAIL: {what} is not there.")


def check(what, good):
    if not good:
        sys.exit(f"FAIL: {what}")
    print(f"ok: {what}")


def shows(node, *states):
    return all(node.getState().contains(state) for state in states)


def find(top, role, named, *states):
    return next((node for node in nodes(top)
                 if node.getRole() == role and named(node.name) and shows(node, *states)), None)


def application():
    desktop = pyatspi.Registry.getDesktop(0)
    return next((app for app in desktop if app is not None and app.name == "jobedit"), None)


def labels(node):
    """The names of what labels the node."""
    return [relation.getTarget(index).name for relation in node.getRelationSet()
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY for index in range(relation.getNTargets())]


def text(node):
    entry = node.queryText()
    return entry.getText(0, entry.characterCount)


def do(node, *names):
    """Does the first of the node's actions that goes by one of these names."""
    actions = node.queryAction()
    for index in range(actions.nActions):
        if actions.getName(index) in names:
            return actions.doAction(index)
    sys.exit(f"FAIL: {node.name} has none of the actions {names}: "
             + str([actions.getName(index) for index in range(actions.nActions)]))


def main():
    program, directory = sys.argv[1:]
    job = os.path.join(directory, "heard.job.xml")
    subprocess.run([program, "new", job], check=True, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
                   stdout=subprocess.DEVNULL)
    editor = subprocess.Popen([program, job])
    try:
        drive(job)
    finally:
        editor.terminate()
        editor.wait(10)


def drive(job):
    app = wait("the editor", application)
    window = wait("the window", lambda: find(app, pyatspi.ROLE_FRAME, lambda name: "heard" in name))

    tree = wait("the tree of nodes", lambda: find(window, pyatspi.ROLE_TREE, lambda name: name == "Nodes of the job"))
    check("the tree of nodes has the chains", tree.childCount > 100)
    tuner = wait("the tuner chain", lambda: next(
        (tree.getChildAtIndex(index + 2) for index in range(tree.childCount - 2)
         if tree.getChildAtIndex(index).name == "CS_VOICE"), None))
    check("the node below CS_VOICE is its task", tuner.name == "VOICE")
    do(tuner, "Toggle", "Press", "toggle", "press") if False else tree.querySelection().selectChild(tuner.getIndexInParent())

    field = wait("the field called Frequency", lambda: find(
        window, pyatspi.ROLE_TEXT, lambda name: name.startswith("Frequency"), pyatspi.STATE_SHOWING, pyatspi.STATE_ENABLED))
    before = text(field)
    check(f"the frequency is read as a number: {before}", before.replace(".", "").replace(",", "").isdigit())


if __name__ == "__main__":
    main()
