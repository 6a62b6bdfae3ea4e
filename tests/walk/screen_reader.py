"""A desktop of the test's own, and in it what a screen reader is told and does.

Through libatspi, as screen readers do: names, roles and states are its words ("push button").
"""

import ctypes
import os
import select
import signal
import subprocess
import time

START_S = 20  # for a service or the program to come up
ANSWER_S = 2  # for an answer: readers give up on a program that keeps them waiting
COME_S = 3  # for a window to open, or the focus to move
QUIET_S = 0.25  # the focus moves on within a fraction of that

# What is read of a text or a number, in each of these roles.
WITH_TEXT = {"combo box", "label", "password text", "spin button", "text"}
WITH_NUMBER = {"dial", "slider", "spin button"}

FIRST_DISPLAY, LAST_DISPLAY = 1000, 50000


class Missing(Exception):
    """What the test needs is not there, or did not come."""


def start_child(command, environment=None, **streams):
    """Starts a program that ends with this one."""
    parent_death_signal = 1
    libc = ctypes.CDLL(None)
    return subprocess.Popen(
        command, env=environment, preexec_fn=lambda: libc.prctl(parent_death_signal, signal.SIGTERM),
        **streams)


def line_from(process, what, seconds):
    if not select.select([process.stdout], [], [], seconds)[0]:
        raise Missing(f"{what}: no answer within {seconds} s")
    line = process.stdout.readline()
    if not line:
        raise Missing(f"{what}: has ended")
    return line.decode().strip()


def start_display(xvfb):
    """Sets DISPLAY. Abstract sockets are the whole machine's, of every folder that is a root:
    a number that nobody has is looked for there as well."""
    with open("/proc/net/unix", encoding="ascii", errors="replace") as sockets:
        taken = sockets.read()
    first = FIRST_DISPLAY + os.getpid() % (LAST_DISPLAY - FIRST_DISPLAY)
    for number in range(first, first + 20):
        if f"/.X11-unix/X{number}\n" in taken:
            continue
        server = start_child([xvfb, f":{number}", "-displayfd", "1", "-screen", "0", "1600x1200x24"],
                             stdout=subprocess.PIPE)
        try:
            os.environ["DISPLAY"] = ":" + line_from(server, "Xvfb", START_S)
            return server
        except Missing:
            server.kill()
    raise Missing("Xvfb does not start")


def start_bus(dbus_daemon):
    """Sets DBUS_SESSION_BUS_ADDRESS."""
    bus = start_child([dbus_daemon, "--session", "--nofork", "--nopidfile", "--print-address=1"],
                      stdout=subprocess.PIPE)
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = line_from(bus, "dbus-daemon", START_S)
    return bus


def start_service(launcher):
    return start_child([launcher, "--launch-immediately", "--a11y=1"], stdout=subprocess.DEVNULL)


def states_of(accessible):
    return {state.value_nick for state in accessible.get_state_set().get_states()}


class Node:
    """An object of a window, with those in it that are shown, as it was when it was read."""

    def __init__(self, accessible, around=None, states=None):
        self.accessible = accessible
        self.around = around
        self.role = accessible.get_role_name()
        self.name = accessible.get_name() or ""
        self.description = accessible.get_description() or ""
        self.states = states or states_of(accessible)
        self.labels = [relation.get_target(i).get_name()
                       for relation in accessible.get_relation_set()
                       if relation.get_relation_type().value_nick == "labelled-by"
                       for i in range(relation.get_n_targets())]
        text = accessible.get_text_iface() if self.role in WITH_TEXT else None
        self.text = text.get_text(0, text.get_character_count()) if text else None
        value = accessible.get_value_iface() if self.role in WITH_NUMBER else None
        self.value = ((value.get_minimum_value(), value.get_current_value(),
                       value.get_maximum_value()) if value else None)
        self.children = []
        for i in range(accessible.get_child_count()):
            child = accessible.get_child_at_index(i)
            states = states_of(child) if child else ()
            if "showing" in states:
                self.children.append(Node(child, self, states))

    def __str__(self):
        return f"{self.role} “{self.name}”"

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def find(self, role, name):
        return next((node for node in self.all() if node.role == role and node.name == name), None)


class ScreenReader:
    """Of the display and the session bus of the environment, with the program on them."""

    def __init__(self):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi = Atspi
        self.failed = GLib.Error
        self.context = GLib.MainContext.default()
        self.until(lambda: Atspi.init() in (0, 1), START_S)
        Atspi.set_timeout(ANSWER_S * 1000, START_S * 1000)
        self.focused = []
        self.announced = []
        self.inserted = []
        self.menu = None  # the one that was opened last
        self.listener = Atspi.EventListener.new(self._note)
        for event in ("object:state-changed:focused", "object:state-changed:showing",
                      "object:text-changed:insert"):
            self.listener.register(event)

    def _note(self, event):
        try:
            if event.type == "object:text-changed:insert":
                self.inserted.append((event.source, event.any_data))
            elif event.detail1 and event.type.endswith("focused"):
                self.focused.append(event.source)
            elif event.detail1:
                role = event.source.get_role_name()
                if role == "notification":
                    self.announced.append(event.source.get_name())
                elif role == "popup menu":
                    self.menu = event.source
        except self.failed:
            pass  # it told of an object that is no more

    def until(self, condition, seconds=COME_S):
        """Handles events until the condition holds; whether it came to hold."""
        end = time.monotonic() + seconds
        while True:
            while self.context.pending():
                self.context.iteration(False)
            if condition():
                return True
            if time.monotonic() > end:
                return False
            time.sleep(0.002)

    def windows(self):
        desktop = self.atspi.get_desktop(0)
        desktop.clear_cache()
        for i in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(i)
            for k in range(program.get_child_count() if program else 0):
                window = program.get_child_at_index(k)
                if window:
                    yield window

    def active_window(self):
        return next((window for window in self.windows()
                     if window.get_state_set().contains(self.atspi.StateType.ACTIVE)), None)

    def read(self, window):
        window.clear_cache()
        return Node(window)

    def is_now(self, accessible, state):
        accessible.clear_cache()
        return accessible.get_state_set().contains(getattr(self.atspi.StateType, state))

    def do(self, accessible, name):
        """Has it do one of its actions; false when it has no such action, or does not answer
        within ANSWER_S, as what waits for a dialog that it has opened."""
        actions = accessible.get_action_iface()
        offered = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        if name not in offered:
            return False
        try:
            return actions.do_action(offered.index(name))
        except self.failed:
            return False

    def press(self, key, times=1):
        """Of the keyboard: a symbol of X11 (keysymdef.h)."""
        for _ in range(times):
            self.atspi.generate_keyboard_event(key, None, self.atspi.KeySynthType.SYM)

    def shift(self, is_down):
        how = self.atspi.KeySynthType
        left_shift = 50  # the code of a key, of X11's usual keyboard
        self.atspi.generate_keyboard_event(left_shift, None, how.PRESS if is_down else how.RELEASE)

    def forget_focused(self):
        self.until(lambda: False, 0.02)
        self.focused = []

    def take_focused(self, count):
        """What the focus has come to since this was asked last. Waits until it has come to
        `count` objects, or to no other for a while."""
        seen, end = -1, 0.0
        while True:
            self.until(lambda: len(self.focused) > seen, 0.01)
            if len(self.focused) > seen:
                seen, end = len(self.focused), time.monotonic() + QUIET_S
            if seen >= count or time.monotonic() > end:
                break
        taken, self.focused = self.focused, []
        return taken


class Program:
    """window_stops, in a language."""

    def __init__(self, path, language):
        self.process = start_child(
            [path], dict(os.environ, QT_QPA_PLATFORM="xcb", LANGUAGE=language),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def say(self, line):
        self.process.stdin.write(line.encode() + b"\n")
        self.process.stdin.flush()
        return line_from(self.process, "window_stops", START_S)

    def end(self):
        self.process.stdin.close()
        self.process.wait(START_S)
