#!/usr/bin/env python3
"""A host editor in small, with Python's standard library alone (of which Debian keeps tkinter in python3-tk).

Its button "New" opens a second window, and it plays the first lesson as far as these two windows carry it. More
windows, more conditions, being minimised and sample data it leaves out. docs/link.md tells how the two ends of the
link talk to each other.

    host.py PROGRAM     the companion's path, .../tutorial/Tutorial
"""

import json
import os
import secrets
import socket
import subprocess
import sys
import tkinter

ICONS = ["click", "doubleClick", "rightClick", "eye", "wait", "keyboard", ""]
NOWHERE = (-9999, -9999)
KEEP_ALIVE_MS = 5000
START_LIMIT_S = 30


class Companion:
    """The companion as a process, and the link to it."""

    def __init__(self, program):
        key = secrets.token_hex(16)
        path = os.path.join(os.environ.get("TMPDIR") or "/tmp", "tkvq" + key)
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(path)
            try:
                server.listen(1)
                server.settimeout(START_LIMIT_S)
                self.process = subprocess.Popen([program, key, "en_US"], stderr=subprocess.DEVNULL)
                self.link, _ = server.accept()
            finally:
                os.unlink(path)
        self.received = b""

    def send(self, *fields):
        payload = "\x01".join(map(str, fields)).encode()
        self.link.sendall(b"0%08x\x02%s\x00" % (len(payload), payload))

    def receive(self):
        """What has come, each command as the list of its fields; None once the link is down."""
        arrived = self.link.recv(65536)
        if not arrived:
            return None
        self.received += arrived
        commands = []
        while len(self.received) >= 10:
            end = 10 + int(self.received[1:9], 16)
            if len(self.received) <= end:
                break
            commands.append(self.received[10:end].decode().split("\x01"))
            self.received = self.received[end + 1:]
        return commands

    def close(self):
        self.link.close()
        self.process.wait()


class Editor:
    """The windows, and the lesson that is played in them."""

    def __init__(self, program):
        self.steps = []  # of the lesson that is played,
        self.index = 0  # and which of them is reached
        self.main = tkinter.Tk()
        self.main.title("Example host")
        self.main.geometry("1100x720+90+190")
        self.main.protocol("WM_DELETE_WINDOW", self.main.quit)
        button = tkinter.Button(self.main, text="New", command=self.open_new_project)
        button.place(x=8, y=4, width=60, height=48)  # where the step that asks for it points
        self.windows = {"MainWindow": self.main}  # those that are open
        self.main.bind("<Configure>", lambda event: self.tell_place())
        self.main.update()

        self.companion = Companion(program)
        self.main.createfilehandler(self.companion.link, tkinter.READABLE, lambda *_: self.on_readable())
        self.companion.send("fromServer", "en_US")
        self.companion.send("tutorialList")
        self.keep_alive()

    def keep_alive(self):
        self.companion.send("alive")
        self.main.after(KEEP_ALIVE_MS, self.keep_alive)

    def open_new_project(self):
        if "NewProject" in self.windows:
            return
        dialog = self.windows["NewProject"] = tkinter.Toplevel(self.main, width=440, height=190)
        dialog.title("New project")
        dialog.protocol("WM_DELETE_WINDOW", self.close_new_project)
        dialog.bind("<Configure>", lambda event: self.tell_place())
        dialog.update()
        self.happened("windowState,NewProject,open")

    def close_new_project(self):
        self.windows.pop("NewProject").destroy()
        self.happened("windowState,NewProject,close")

    def on_readable(self):
        commands = self.companion.receive()
        if commands is None:
            print("The companion is gone.", file=sys.stderr)
            self.main.quit()
        for word, *fields in commands or []:
            if word == "tutorialList":
                self.companion.send("tutorial", json.loads(fields[0])[0]["filename"])
            elif word == "start":
                self.begin(fields[0], int(fields[1]))
            elif word in ("next", "yes", "no"):
                self.on_button(word)

    def begin(self, script, first):
        self.steps = json.loads(script[script.index("["):script.rindex("]") + 1])
        self.companion.send("start", 0, 0, self.main.winfo_screenwidth(), self.main.winfo_screenheight())
        # A bubble that points nowhere stays where it is: in the middle of the window it is seen.
        self.companion.send("indicator", "updateXy", self.main.winfo_rootx() + 512, self.main.winfo_rooty() + 210)
        self.reach(self.index_of(first, 0))

    def index_of(self, step_id, otherwise):
        ids = [step["id"] for step in self.steps]
        return ids.index(step_id) if step_id in ids else otherwise

    def reach(self, index):
        self.index = index
        if not self.step():
            self.companion.send("stop")
            return
        kind, key, state = (self.step()["condition"] + ",,").split(",")[:3]
        if kind == "windowState" and (key in self.windows) == (state == "open"):
            self.go_on("jump")  # it is so already
            return
        print(f"step {index + 1} of {len(self.steps)}", flush=True)
        self.tell_step()

    def step(self):
        """The step that is reached; None while no lesson is played."""
        return self.steps[self.index] if self.index < len(self.steps) else None

    def tell_step(self):
        step = self.step()
        kind = step["condition"].split(",")[0]
        flags = {"click": 1, "yesNo": 2}.get(kind, 0) + (4 if step["showArrow"] else 0)
        self.companion.send("indicator", "update", *self.place_of(step), step["windowKey"], step["hint"], flags,
                            ICONS.index(step["icon"]))

    def place_of(self, step):
        window = self.windows.get(step["windowKey"])
        if window is None or (step["x"], step["y"]) == NOWHERE:
            return NOWHERE
        return window.winfo_rootx() + step["x"], window.winfo_rooty() + step["y"]

    def tell_place(self):
        """A window was moved, and the arrow goes along."""
        if self.step() and self.place_of(self.step()) != NOWHERE:
            self.companion.send("indicator", "updateXy", *self.place_of(self.step()))

    def happened(self, what):
        if self.step() and self.step()["condition"] == what:
            self.go_on("jump")
        elif self.step():
            self.tell_step()  # its window may be the one that came or went

    def on_button(self, word):
        kind = self.step() and self.step()["condition"].split(",")[0]
        if kind == ("click" if word == "next" else "yesNo"):
            self.go_on("jumpNo" if word == "no" else "jump")

    def go_on(self, jump):
        self.reach(self.index_of(self.step()[jump], self.index + 1))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    editor = Editor(sys.argv[1])
    editor.main.mainloop()
    editor.companion.close()
