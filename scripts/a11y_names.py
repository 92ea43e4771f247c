#!/usr/bin/python3
"""Reads the forms of a running Brimo2010 over AT-SPI, as a screen reader
does, and counts for each window its focusable controls, those without a
name and those whose name another control of the window shares. Tab
controls are walked tab by tab, so that every page is read.

Usage: a11y_names.py TITLE [--via WINDOW:BUTTON] [--list] [--refusal]
  TITLE      the window's title
  --via      presses BUTTON of WINDOW first, to open the window TITLE
  --list     prints every focusable control with its role and name
  --refusal  types a text that is no number into the first centred field it
             finds, leaves it, and prints the alert that comes up
"""
import sys
import time

import pyatspi

WINDOWS = {"frame", "dialog", "window", "alert"}


def application():
    for _ in range(100):
        for app in pyatspi.Registry.getDesktop(0):
            if app is not None and app.name.startswith("Brimo2010"):
                return app
        time.sleep(0.1)
    sys.exit("Brimo2010 not found on the accessibility bus")


def window(title):
    for _ in range(100):
        for win in application():
            if win is not None and win.name == title:
                return win
        time.sleep(0.1)
    sys.exit(f"no window '{title}'")


def walk(acc, path=()):
    yield acc, path
    for i in range(acc.childCount):
        child = acc.getChildAtIndex(i)
        if child is not None:
            yield from walk(child, path + (i,))


def controls(win):
    out = {}
    for acc, path in walk(win):
        states = acc.getState()
        if acc.getRoleName() not in WINDOWS and states.contains(pyatspi.STATE_FOCUSABLE):
            out[path] = (acc.getRoleName(), acc.name or "")
    return out


def tabs(win):
    return [acc for acc, _ in walk(win) if acc.getRoleName() == "page tab"]


def press(acc):
    action = acc.queryAction()
    for i in range(action.nActions):
        if action.getName(i) in ("press", "click", "switch"):
            action.doAction(i)
            return
    action.doAction(0)


def read(win):
    """Every focusable control of every tab: (tab, path) -> (role, name)."""
    snapshots = []
    count = len(tabs(win)) or 1
    for t in range(count):
        if tabs(win):
            press(tabs(win)[t])
            time.sleep(0.3)
        snapshots.append(controls(win))
    common = set.intersection(*(set(s) for s in snapshots))
    merged = {(None, p): snapshots[0][p] for p in common}
    for t, snap in enumerate(snapshots):
        merged.update({(t, p): v for p, v in snap.items() if p not in common})
    return merged


def refusal(win):
    fields = [acc for acc, _ in walk(win) if acc.getRoleName() == "text" and acc.getState().contains(pyatspi.STATE_SHOWING)]
    field, other = fields[0], fields[1]
    field.queryComponent().grabFocus()
    field.queryEditableText().setTextContents("abc")
    try:  # the refusal's box holds the call that moved the focus until it closes
        other.queryComponent().grabFocus()
    except Exception:
        pass
    for _ in range(50):
        for w in application():
            if w is not None and w.getRoleName() in ("alert", "dialog") and w.name != win.name:
                text = " ".join(a.name for a, _ in walk(w) if a.getRoleName() == "label" and a.name)
                print(f"alert: role={w.getRoleName()!r} name={w.name!r} description={w.description!r} label={text!r}")
                for a, _ in walk(w):
                    if a.getRoleName() == "push button":
                        press(a)
                return
        time.sleep(0.1)
    print("alert: none")


def main():
    title = sys.argv[1]
    if "--via" in sys.argv:
        opener, button = sys.argv[sys.argv.index("--via") + 1].split(":", 1)
        press(next(a for a, _ in walk(window(opener)) if a.getRoleName() == "push button" and a.name == button))
    win = window(title)
    if "--refusal" in sys.argv:
        refusal(win)
        return
    found = read(win)
    names = [name for _, name in found.values()]
    unnamed = sum(1 for n in names if not n)
    shared = sum(1 for n in names if n and names.count(n) > 1)
    if "--list" in sys.argv:
        for (tab, path), (role, name) in sorted(found.items(), key=lambda kv: (kv[0][0] is not None, kv[0][0] or 0, kv[0][1])):
            print(f"  tab={tab} {role:14} {name!r}")
    print(f"{title}: focusable={len(found)} unnamed={unnamed} sharing={shared}")


main()
