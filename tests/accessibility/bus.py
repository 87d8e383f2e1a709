"""The program as a client of the accessibility bus sees it: finds it, walks it, listens, presses keys."""
import os
import shutil
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Atspi.init()
Atspi.set_timeout(3000, 5000)

failed = []


def check(what, holds, seen=""):
    """Prints what doesn't hold; the run goes on."""
    if not holds:
        failed.append(what)
        print(f"FAILED {what} {seen}")


def within(seconds, test):
    """The first true answer of `test`, or the last."""
    end = time.time() + seconds
    while not (answer := test()) and time.time() < end:
        time.sleep(0.05)
    return answer


def states(thing):
    return {s.value_nick for s in thing.get_state_set().get_states()}


def children(thing):
    return [c for c in (thing.get_child_at_index(i) for i in range(thing.get_child_count())) if c]


def all_of(thing, test):
    return ([thing] if test(thing) else []) + [found for c in children(thing) for found in all_of(c, test)]


def key(*keys, pause=0.15):
    for k in keys:
        subprocess.run(["xdotool", "key", "--clearmodifiers", k], check=True)
        time.sleep(pause)


def key_often(held, k, times):
    """As fast as a held key: nothing that a pause would end ends between them. With a reader on the bus the toolkit
    delivers keys late, and takes the release of one Alt for that of the next: it is pressed once, as hands do."""
    subprocess.run(["xdotool", "keydown", held, "key", "--delay", "40"] + [k] * times + ["keyup", held], check=True)


class Ears:
    """Collects what the bus tells: kind, the name of who tells it, the detail."""

    def __init__(self):
        self.heard = []
        self.listener = Atspi.EventListener.new(self.take)
        for kind in ("object:state-changed:focused", "object:state-changed:selected", "object:state-changed:showing",
                     "object:children-changed", "object:property-change", "window"):
            self.listener.register(kind)

    def take(self, event):
        try:
            self.heard.append((event.type, event.source.get_name(), event.detail1, event.source.get_role_name()))
        except GLib.Error:  # whoever told it is gone
            self.heard.append((event.type, None, event.detail1, None))

    def drain(self, seconds=0.4, rest=0.2):
        """What is heard for so long, and on until the program rests: on a busy machine it may be far behind."""
        self.listen(max(seconds - rest, 0))
        end = time.time() + 10
        spent = None
        while spent != (spent := Program.running.seconds()) and time.time() < end:
            self.listen(rest)
        heard, self.heard = self.heard, []
        return heard

    @staticmethod
    def listen(seconds):
        loop = GLib.MainLoop()
        GLib.timeout_add(int(seconds * 1000), loop.quit)
        loop.run()

    def after(self, *keys, seconds=0.5):
        self.drain(0.1)
        key(*keys)
        return self.drain(seconds)


class Program:
    """One run of the window, with settings of its own."""

    running = None  # the last one

    def __init__(self, language, project, page=True):
        folder = os.path.join(os.environ["HOME"], "program")  # the settings stand beside the program
        os.makedirs(folder, exist_ok=True)
        program = shutil.copy(os.environ["KW_KINWRIGHT"], folder)
        with open(os.path.join(folder, "prog.ini"), "w", encoding="ascii") as ini:
            ini.write(f"[DEFAULT]\nlanguage={language}\ntoolbar=1\npapersize=9\nclscheme=0\n")
        # What the last run left unsaved would be offered first.
        shutil.rmtree(os.path.join(os.environ["HOME"], ".local"), ignore_errors=True)
        self.process = subprocess.Popen([program, project])
        Program.running = self
        self.root = within(20, self.find)
        if not self.root:
            sys.exit("the program isn't on the bus")
        self.canvas = within(10, self.page) if page else None

    def find(self):
        return next((a for a in children(Atspi.get_desktop(0)) if "inwright" in (a.get_name() or "")), None)

    def page(self):
        """The canvas, when the project is on it."""
        found = all_of(self.root, lambda o: o.get_role() == Atspi.Role.CANVAS)
        return found[0] if found and self.rows(found[0]) else None

    @staticmethod
    def rows(canvas):
        return [c for c in children(canvas) if c.get_role() == Atspi.Role.LIST_ITEM]

    def elements(self):
        return self.rows(self.canvas)

    def named(self, beginning):
        return next((e for e in self.elements() if e.get_name().startswith(beginning)), None)

    def focused(self):
        return [e.get_name() for e in self.elements() if "focused" in states(e)]

    def windows(self):
        return [w for w in children(self.root) if w.get_role() != Atspi.Role.FRAME]

    def seconds(self):
        """Of the processor, so far."""
        with open(f"/proc/{self.process.pid}/stat", encoding="ascii") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def end(self):
        self.process.terminate()
        return self.process.wait(10)
