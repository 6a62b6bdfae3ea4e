#!/usr/bin/python3
"""What a screen reader finds in every window of the program, and does there.

Takes the paths of Xvfb, dbus-daemon, at-spi-bus-launcher, window_stops and the folder of the
scripts that open the windows; names of scripts may follow. Ends with 1 where something is wrong.
"""

import os
import re
import signal
import sys

from screen_reader import (ANSWER_S, Missing, Program, ScreenReader, start_bus, start_display,
                           start_service)

LIMIT_S = 240  # for all; it takes a quarter of that
PRESSES_IN_A_STOP = 100  # at most, of the Tab key: fields of a time, links of a page

TAB, ESCAPE, DOWN = 0xFF09, 0xFF1B, 0xFF54  # X11's symbols of keys

# What is operated or read has a name, in each of these roles.
NAMED = {"alert", "check box", "combo box", "dial", "dialog", "list", "notification", "page tab",
         "page tab list", "panel", "password text", "progress bar", "push button", "radio button",
         "slider", "spin button", "table", "table column header", "text", "toggle button", "tree"}
OPERATED = NAMED - {"alert", "dialog", "notification", "panel", "table column header"}
# Parts of what the focus comes to, and texts that can be selected with the mouse.
PARTS = {"label", "list item", "table cell", "table column header", "tree item"}
BUTTONS = {"check box", "push button", "radio button", "toggle button"}
NUMBERS = {"dial", "slider", "spin button"}

# What a reader does in a window, and an object that is there when its owner has heard of it.
DEEDS = {
    "booklet_creation": (("radio button", "Booklet layout"), "Toggle",
                         lambda node: node.name == "Gutter" and "enabled" in node.states),
    "custom_size": (("spin button", "Width"), "Increase",
                    lambda node: node.name == "Width" and node.text == "211.0"),
    "fax": (("page tab", "Sending"), "Press",
            lambda node: node.name == "Send speed" and node.role == "combo box"),
    "fax_options": (("check box", "Dial a prefix first:"), "Toggle",
                    lambda node: node.name == "Dialing prefix" and "enabled" not in node.states),
    "image_options": (("slider", "Lighten or darken, in steps"), "Decrease",
                      lambda node: node.role == "spin button" and node.text == "-4"),
}
BESIDE = {"help"}  # opens a window beside the print dialog, and not in front of it
# What readers say by themselves of a window that comes up.
SAID = {"conflict": "cannot be used together", "lacking": "does not have"}
# A list is open in these, that of a pop-up button.
OPEN_LISTS = {"printers", "printers_none"}
# In these the Down key makes another choice in the pop-up button that has the focus.
CHOSEN_BY_KEY = {"finishing_fold"}

MARKUP = re.compile(r"&\S|</?[a-z]+>")
PROPER = {"sRGB"}  # is written so, and a choice of devices
KEY = re.compile(r"^([a-z]+[A-Z][A-Za-z0-9]*|STRING NOT FOUND|.* Command)$")


def faults_of(node):
    """Of one object, whatever is around it."""
    for text in (node.name, node.description, node.text or ""):
        if MARKUP.search(text):
            yield f"markup in {text}"
        if KEY.match(text) and node.role != "text" and text not in PROPER:
            yield f"a key for {text}"
    if node.role in NAMED and not node.name.strip():
        yield "no name"
    if node.description == node.name != "" and node.role != "label":
        yield "its description repeats the name"
    # A reader says the label in place of the name.
    labels = [label.rstrip(":") for label in node.labels]
    if labels and (node.role in BUTTONS and node.name not in labels
                   or node.role == "label" and node.name in labels):
        yield f"told as {labels} in place of what is on it"
    if node.role == "frame" and node.around:
        yield "told as a window"
    is_choice = node.role == "combo box" and "editable" not in node.states
    if is_choice and not (node.text or node.description):
        yield "its choice is not told"
    if node.role == "combo box" and "expandable" not in node.states:
        yield "nobody is told that it opens"
    if node.role in NUMBERS:
        least, now, most = node.value or (0, 0, 0)
        if not least <= now <= most or least == most:
            yield f"is {now} between {least} and {most}"
        if node.role == "spin button" and not node.text:
            yield "its number is not told"
    if node.role == "password text" and any(c.isalnum() for c in node.text or ""):
        yield "told aloud"
    if "focusable" in node.states and node.role not in OPERATED | PARTS | {"image"}:
        yield "nobody is told that it can be operated"
    if node.role == "page tab list":
        if sum("selected" in tab.states for tab in node.children) != 1:
            yield "not one of its tabs is selected"
    if node.role == "image" and "focusable" in node.states and not node.name:
        yield "no name"


def faults_of_window(window):
    nodes = list(window.all())
    faults = [f"{node}: {fault}" for node in nodes for fault in faults_of(node)]
    focused = [node for node in nodes
               if "focused" in node.states and "transient" not in node.states]
    if len(focused) != 1:
        faults.append("has the focus: " + (", ".join(map(str, focused)) or "nothing"))
    if window.role not in ("dialog", "alert"):
        faults.append(f"{window}: no window")
    answering = sum("is-default" in node.states for node in nodes)
    if "modal" in window.states and answering != 1:
        faults.append(f"{answering} buttons answer Return")
    return faults


def stops_of(window):
    """What the Tab key must come to, and of each object the stop that is at it or around it.
    In a group of radio buttons it comes to the one that is on."""
    stops, stop_at = [], {}

    def add(node, around):
        stop = around
        beside = node.around.children if node.around else []
        is_skipped = node.role == "radio button" and "checked" not in node.states and any(
            other.role == "radio button" and "checked" in other.states for other in beside)
        if (not stop and not is_skipped and {"focusable", "enabled"} <= node.states
                and node.role not in PARTS):
            stop = node
            stops.append(node)
        first = len(stops)
        for child in node.children:
            add(child, stop)
        # Qt tells of these first, and of what has the focus in them then.
        if not stop and node.role in ("combo box", "page tab list") and len(stops) > first:
            stop = stops[first]
        stop_at[node.accessible] = stop

    add(window, None)
    return stops, stop_at


class Walk:
    def __init__(self, reader, program):
        self.reader = reader
        self.program = program
        self.tried = set()  # what opens something, by what is told of it

    def active_after(self, window):
        """The window that comes to have the keyboard in place of `window`; None: none does."""
        found = []

        def is_another():
            active = self.reader.active_window()
            found[:] = [active] if active and active != window else []
            return bool(found)

        return found[0] if self.reader.until(is_another) else None

    def round_by_tab(self, stops, stop_at, is_back):
        """The stops in the order that the Tab key comes to them, once round: the last is the
        first again."""
        count = len(stops) + 1
        self.reader.forget_focused()
        around, kept = [], 0
        while kept < PRESSES_IN_A_STOP and len(around) < count:
            before = len(around)
            presses = count - before if kept == 0 else 10
            if is_back:
                self.reader.shift(True)
            self.reader.press(TAB, presses)
            if is_back:
                self.reader.shift(False)
            for accessible in self.reader.take_focused(presses):
                stop = stop_at.get(accessible)
                if stop and (not around or around[-1] is not stop):
                    around.append(stop)
            kept += presses - (len(around) - before)
        return around[:count]

    def faults_of_tab(self, window):
        stops, stop_at = stops_of(window)
        if len(stops) < 2:
            return [] if stops else ["nothing to come to by Tab"]
        there = self.round_by_tab(stops, stop_at, False)
        faults = [f"{stop}: not by Tab" for stop in stops if stop not in there]
        if not there or there.pop() is not there[0]:
            faults.append("Tab does not go round")
        back = self.round_by_tab(stops, stop_at, True)[:-1][::-1]
        if there and there[0] in back:  # it began wherever the way there had ended
            begin = back.index(there[0])
            back = back[begin:] + back[:begin]
        if back != there:
            faults.append("Shift+Tab does not go the same way back")
        return faults

    def faults_of_opening(self, window):
        """Of what opens a window or a list: it answers at once, opens, and closes by Escape."""
        faults = []
        for node in window.all():
            is_list = "expandable" in node.states and "editable" not in node.states
            opens = is_list or node.role == "push button" and node.name.endswith("…")
            # Once for all windows that have it.
            if not opens or "enabled" not in node.states or str(node) in self.tried:
                continue
            self.tried.add(str(node))
            faults_of = self.faults_of_list if is_list else self.faults_of_dialog
            faults += [f"{node}: {fault}" for fault in faults_of(window, node)]
            if is_list and node.role == "push button":
                faults += [f"{node}: {fault}" for fault in self.faults_of_menu(window, node)]
        return faults

    def faults_of_dialog(self, window, node):
        is_answered = self.reader.do(node.accessible, "Press")
        opened = self.active_after(window.accessible)
        if opened:
            self.reader.press(ESCAPE)
        if not is_answered:
            yield f"no answer within {ANSWER_S} s to a reader that presses it"
        elif not opened:
            yield "opens nothing when a reader presses it"
        if opened and not self.reader.until(
                lambda: self.reader.active_window() == window.accessible):
            yield "does not close by Escape"

    def faults_of_list(self, window, node):
        def is_open():
            return self.reader.is_now(node.accessible, "EXPANDED")

        if not self.reader.do(node.accessible, "ShowMenu"):
            yield f"no answer within {ANSWER_S} s to a reader that opens it"
        elif not self.reader.until(is_open):
            yield "does not open when a reader opens it"
        self.reader.press(ESCAPE)
        if not self.reader.until(lambda: not is_open()):
            yield "does not close by Escape"

    def faults_of_menu(self, window, node):
        """Of its lines, those that open a window answer at once, too."""
        def lines():
            self.reader.menu = None
            self.reader.do(node.accessible, "ShowMenu")
            self.reader.until(lambda: self.reader.menu)
            return list(self.reader.read(self.reader.menu).all())[1:] if self.reader.menu else []

        names = [line.name for line in lines() if "enabled" in line.states]
        self.reader.press(ESCAPE)
        self.reader.until(lambda: not self.reader.is_now(node.accessible, "EXPANDED"))
        if not names:
            yield "no lines"
        for name in names:
            if not name.endswith("…") or name in self.tried:
                continue
            self.tried.add(name)
            line = next(line for line in lines() if line.name == name)
            yield from (f"{name}: {fault}" for fault in self.faults_of_dialog(window, line))

    def faults_of_deed(self, window, role_and_name, action, is_done):
        node = window.find(*role_and_name)
        if not node:
            return [f"no {role_and_name}"]
        if not self.reader.do(node.accessible, action):
            return [f"{node}: no answer to {action}"]
        is_heard = self.reader.until(
            lambda: any(map(is_done, self.reader.read(window.accessible).all())))
        return [] if is_heard else [f"{node}: {action} comes to nobody"]

    def faults_of_key(self, window):
        node = next(node for node in window.all() if "focused" in node.states)
        self.reader.inserted = []
        self.reader.press(DOWN)
        is_said = self.reader.until(lambda: any(
            source == node.accessible and text == self.reader.read(source).text != node.text
            for source, text in self.reader.inserted))
        return [] if is_said else [f"{node}: nobody says the choice that a key has made"]

    def faults_of_search(self, window):
        """Of an open list with a field above it: what is found is said, and rows tell all that
        they show, also while the field keeps the keyboard."""
        field = window.find("text", "Search for a printer")
        rows = [node for node in window.all() if node.role == "list item"]
        if not field or "focused" not in field.states:
            yield "the field has not the focus"
            return
        if not any(
                "Accounting, stopped: Toner and drum" in row.name
                and "room 214, Kelvo Corvane C50" in row.name for row in rows):
            yield f"rows: {list(map(str, rows))}"
            return
        self.reader.announced = []
        self.reader.press(ord("2"))
        if not self.reader.until(lambda: "4 of 12 printers" in self.reader.announced):
            yield f"what is found is not said: {self.reader.announced}"
        self.reader.forget_focused()
        self.reader.press(DOWN)
        if not self.reader.until(lambda: any(
                source.get_name().startswith("Cairo,") for source in self.reader.focused)):
            yield "the row that a key comes to is not told"
        self.reader.press(TAB)
        if not self.reader.until(lambda: any(
                node.role == "list" and "focused" in node.states
                for node in self.reader.read(window.accessible).all())):
            yield "the list: not by Tab"

    def visit(self, script, is_operated):
        name = os.path.basename(script)[:-len(".kps")]
        self.reader.announced = []
        answer = self.program.say(script)
        if answer != "open":
            return [answer]
        active = self.active_after(None)
        if not active:
            return ["no window has the keyboard"]
        window = self.reader.read(active)
        faults = faults_of_window(window)
        is_in_front = sum(1 for _ in self.reader.windows()) > 1
        if is_in_front and name not in BESIDE and "modal" not in window.states:
            faults.append("nobody is told that it holds up the window behind it")
        said = SAID.get(name, "")
        if is_operated and said and not any(said in text for text in self.reader.announced):
            faults.append(f"nobody says that something “{said}”")
        if is_operated:
            if name in CHOSEN_BY_KEY:
                faults += self.faults_of_key(window)
            if name == "printers":
                faults += self.faults_of_search(window)
            if name not in OPEN_LISTS:
                faults += self.faults_of_tab(window)
                faults += self.faults_of_opening(window)
            if name in DEEDS:
                faults += self.faults_of_deed(window, *DEEDS[name])
        if name in OPEN_LISTS:
            self.reader.press(ESCAPE)
            self.reader.until(lambda: False, 0.05)
            if self.reader.active_window() != active:
                faults.append("Escape closes more than the list")
        self.reader.press(ESCAPE)
        if not self.reader.until(lambda: self.reader.active_window() != active):
            faults.append("Escape does not close it")
        if self.program.say("") != "closed":
            faults.append("does not close")
        return faults


def main(xvfb, dbus_daemon, launcher, window_stops, folder, *names):
    where = ["the start"]

    def too_long(*_):
        raise Missing(f"it takes longer than {LIMIT_S} s, last in {where[0]}")

    signal.signal(signal.SIGALRM, too_long)
    signal.alarm(LIMIT_S)
    try:
        children = [start_display(xvfb), start_bus(dbus_daemon), start_service(launcher)]
        reader = ScreenReader()
    except ImportError as error:
        raise Missing(f"{error}: install python3-gi and gir1.2-atspi-2.0") from error
    scripts = sorted(name for name in os.listdir(folder) if name.endswith(".kps"))
    wrong = 0
    for language in ("en", "de"):
        walk = Walk(reader, Program(window_stops, language))
        for script in scripts:
            if names and script[:-4] not in names:
                continue
            where[0] = f"{language}, {script[:-4]}"
            faults = walk.visit(os.path.join(folder, script), language == "en")
            for fault in faults:
                print(f"{where[0]}: {fault}", flush=True)
            wrong += len(faults)
        walk.program.end()
    for child in reversed(children):
        child.terminate()
        child.wait()
    return 1 if wrong else 0


if __name__ == "__main__":
    try:
        sys.exit(main(*sys.argv[1:]))
    except Missing as problem:
        sys.exit(f"test_accessibility: {problem}")
