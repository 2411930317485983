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

PROGRAM, DIRECTORY = sys.argv[1:]
HEADLESS = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
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


def click(node):
    """Brings the pointer to the node and presses it, as readers do where a node offers no action."""
    area = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(area.x + area.width // 2, area.y + area.height // 2, pyatspi.MOUSE_B1C)


def enter():
    pyatspi.Registry.generateKeyboardEvent(0xFF0D, None, pyatspi.KEY_SYM)


def frequency(job):
    """Of the tuner, as the file holds it."""
    return subprocess.run([PROGRAM, "get", "--stored", job, "TDS_HF1/CS_TUNER/TUNER/TUNER_HF_NB_FREQUENCY"],
                          env=HEADLESS, capture_output=True, text=True).stdout.strip()


def do(node, *names):
    """Does the first of the node's actions that goes by one of these names."""
    actions = node.queryAction()
    for index in range(actions.nActions):
        if actions.getName(index) in names:
            return actions.doAction(index)
    sys.exit(f"FAIL: {node.name} has none of the actions {names}: "
             + str([actions.getName(index) for index in range(actions.nActions)]))


def main():
    job = os.path.join(DIRECTORY, "heard.job.xml")
    subprocess.run([PROGRAM, "new", job], check=True, env=HEADLESS, stdout=subprocess.DEVNULL)
    editor = subprocess.Popen([PROGRAM, job])
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
    words = wait("the filter", lambda: find(window, pyatspi.ROLE_TEXT, lambda name: name == "Filter of the nodes"))
    words.queryEditableText().setTextContents("IPC_TUNER_HF")
    node = wait("the tuner chain alone", lambda: tree.childCount < 20 and next(
        (cell for cell in tree if cell.name == "TUNER" and shows(cell, pyatspi.STATE_SHOWING)), None))
    click(node)
    wait("the selection of the node", lambda: shows(node, pyatspi.STATE_SELECTED))
    wait("the dialog of the node", lambda: find(
        window, pyatspi.ROLE_LABEL, lambda name: name == "/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/"))

    field = wait("the field called Frequency", lambda: find(
        window, pyatspi.ROLE_TEXT, lambda name: name.startswith("Frequency"), pyatspi.STATE_SHOWING, pyatspi.STATE_ENABLED))
    unit = wait("the unit's combo box", lambda: next(
        (node for node in nodes(window) if node.getRole() == pyatspi.ROLE_COMBO_BOX and "Unit" in labels(node)), None))
    check(f"the frequency is read: {text(field)} {unit.name}", (text(field), unit.name) == ("10000", "kHz"))

    click(field)
    field.queryEditableText().setTextContents("7100.5")
    enter()
    undo = wait("the undo action's name", lambda: find(
        window, pyatspi.ROLE_MENU_ITEM, lambda name: name.startswith("Undo") and "Frequency" in name))
    check(f"the undo action says what it takes back: {undo.name}", "10 MHz -> 7.1005 MHz" in undo.name)
    do(wait("Save", lambda: find(window, pyatspi.ROLE_MENU_ITEM, lambda name: name == "Save")), "Press")
    wait("the frequency in the file", lambda: frequency(job) == "7100500")
    check("what was entered stands in the file", True)

    do(undo, "Press")
    wait("the frequency before", lambda: text(field) == "10000")
    check("the undo action brings the frequency back", frequency(job) == "7100500")


if __name__ == "__main__":
    main()
