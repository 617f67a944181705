#!/usr/bin/python3
"""Prints what a screen reader reads over AT-SPI from the running wizard's painted controls.

Usage: atspi_read.py direct|panel|chart. Prints one "key: value" line per item read; a control
that cannot be found prints nothing for it, and the caller's check fails on the missing line.
"""
import sys
import time

import pyatspi


def find_app():
    desktop = pyatspi.Registry.getDesktop(0)
    for _ in range(50):
        for app in desktop:
            if app is not None and app.name and "tnwizard" in app.name.lower():
                return app
        time.sleep(0.2)
    return None


def walk(node, depth=0):
    if node is None or depth > 40:
        return
    yield node
    for i in range(node.childCount):
        try:
            child = node.getChildAtIndex(i)
        except Exception:  # an object that went away while it was read
            continue
        yield from walk(child, depth + 1)


def named(app, predicate):
    for node in walk(app):
        try:
            if predicate(node.name or ""):
                return node
        except Exception:
            continue
    return None


def value_of(node):
    try:
        return node.queryValue().currentValue
    except NotImplementedError:
        return None


def main():
    what = sys.argv[1]
    app = find_app()
    if app is None:
        print("no application found")
        return 1
    if what == "direct":
        cone = named(app, lambda n: n == "Preference cone")
        if cone is not None:
            print("cone:", cone.name, "|", cone.description)
            for i in range(cone.childCount):
                h = cone.getChildAtIndex(i)
                print("handle:", h.name, h.getRoleName(), "%.2f" % value_of(h))
        lamps = named(app, lambda n: n.startswith("Judgment status"))
        if lamps is not None:
            print("lamps:", lamps.name)
    elif what == "panel":
        panel = named(app, lambda n: n == "Alternatives A and B")
        if panel is not None:
            print("panel:", panel.name)
            for i in range(panel.childCount):
                p = panel.getChildAtIndex(i)
                print("point:", p.name, "%.1f" % value_of(p))
        box = named(app, lambda n: n.startswith("A, "))
        if box is not None:
            print("box:", box.name)
    elif what == "chart":
        # The chart is read once the results page is shown, which may take a moment.
        chart = None
        for _ in range(50):
            chart = named(app, lambda n: n == "Attribute Weights and Their Ranges")
            if chart is not None and chart.getState().contains(pyatspi.STATE_SHOWING):
                break
            time.sleep(0.2)
        if chart is not None:
            table = chart.queryTable()
            print("chart:", chart.name, table.nRows, "x", table.nColumns)
            for r in range(table.nRows):
                cells = [table.getAccessibleAt(r, c).name for c in range(table.nColumns)]
                print("row:", " | ".join(cells))
    return 0


if __name__ == "__main__":
    sys.exit(main())
