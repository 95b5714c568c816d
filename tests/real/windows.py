"""The windows of a running program, seen and used as a person would, through the driver library."""

import json
import socket

from waiting import NotYet, patience, wait_until


class Refused(NotYet):
    """The driver could not do it: no such control, hidden, disabled, covered or behind a box."""


class Gone(AssertionError):
    """The program has ended while the test was talking to it."""


class Driver:
    """The line to the driver library inside one process."""

    REPLY_SECONDS = 20.0

    def __init__(self, path):
        self._path = path
        self._socket = None
        self._rest = b""
        self._count = 0

    def connect(self):
        line = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        line.settimeout(self.REPLY_SECONDS * patience["factor"])
        try:
            line.connect(self._path)
        except OSError as failure:
            line.close()
            raise NotYet(str(failure)) from failure
        self._socket = line
        return True

    def ask(self, do, **command):
        """Sends one command and gives its reply, which comes at once in every case."""
        self._count += 1
        command.update(do=do, id=self._count)
        try:
            self._socket.sendall(json.dumps(command).encode() + b"\n")
            reply = json.loads(self._line())
        except socket.timeout as failure:
            raise Gone(f"no reply to {command}: the window's thread stands still") from failure
        except OSError as failure:
            raise Gone(f"the program ended before it replied to {command}") from failure
        if reply.get("id") != self._count:
            raise Gone(f"a reply to something else than {command}: {reply}")
        if not reply["ok"]:
            raise Refused(reply["error"])
        return reply

    def _line(self):
        while b"\n" not in self._rest:
            piece = self._socket.recv(1 << 16)
            if not piece:
                raise ConnectionResetError("closed")
            self._rest += piece
        line, self._rest = self._rest.split(b"\n", 1)
        return line

    def close(self):
        if self._socket:
            self._socket.close()
            self._socket = None


class Control:
    """A control of a window, by its object names from the outside in."""

    def __init__(self, driver, window, *names):
        self._driver = driver
        self._target = {"window": window, "control": list(names)}

    def _ask(self, do, **command):
        return self._driver.ask(do, **self._target, **command)

    def read(self):
        return self._ask("read")

    def property(self, name):
        return self._ask("read", property=name)["value"]

    def __getattr__(self, name):
        """`text`, `rows`, `selected`, `checked`, `enabled`, `visible`, `tooltip`, and so on."""
        seen = self.read()
        if name not in seen:
            raise AttributeError(f"{self._target} shows no {name}: {sorted(seen)}")
        return seen[name]

    def click(self, *modifiers, **how):
        self._ask("click", modifiers=list(modifiers), **how)

    def spot(self, **where):
        """Where on the screen a click on the control, a "row" or a "tab" of it would come down."""
        return self._ask("spot", **where)

    def click_row(self, text, *modifiers):
        """Clicks the row of a list that reads so."""
        rows = self.rows
        if text not in rows:
            raise Refused(f"no row {text!r} among {rows}")
        self.click(*modifiers, row=rows.index(text))

    def click_tab(self, number):
        self.click(tab=number)

    def press(self, key, *modifiers):
        self._ask("press", key=key, modifiers=list(modifiers))

    def type(self, text):
        """Clicks into the control and types, key by key."""
        if not self.window_focus:
            self.click()
        self._ask("type", text=text)

    def drag(self, start, by):
        self._ask("drag", **{"from": list(start), "by": list(by)})


class Window(Control):
    """A top-level window, shown or hidden."""

    def __getitem__(self, name):
        return Control(self._driver, self._target["window"], name)

    @property
    def state(self):
        """Its title, whether it is visible, active, minimised, and its place."""
        return self.read()["window"]

    def run(self, command):
        """Sets a hidden command of the window off."""
        self._ask("action", action=command)

    def grab(self, path):
        self._ask("grab", path=str(path))

    def controls(self):
        return self._ask("controls")["controls"]


class Box:
    """The modal box on top, as it was when it was found."""

    def __init__(self, driver, seen):
        self._driver = driver
        self.kind = seen["kind"]
        self.title = seen["title"]
        self.text = seen["text"]
        self.default = seen.get("default")
        self.buttons = [button["text"] for button in seen["buttons"]]
        self.seen = seen

    def answer(self, button, text=None):
        """Types the text over what stands in the box's line, if given, and presses the button."""
        if text is None:
            self._driver.ask("answer", button=button)
        else:
            self._driver.ask("answer", button=button, text=text)


class Windows:
    """All windows of one program."""

    def __init__(self, driver):
        self.driver = driver

    def __getitem__(self, name):
        return Window(self.driver, name)

    @property
    def main(self):
        return self["frmMain"]

    def all(self):
        return self.driver.ask("windows")["windows"]

    def visible(self):
        """The object names of the windows on the screen, boxes included."""
        return sorted(window["name"] for window in self.all() if window["visible"])

    def popups(self):
        return [name for name in self.visible() if name.startswith("popup")]

    def open_box(self):
        seen = self.driver.ask("box")["box"]
        return Box(self.driver, seen) if seen else None

    def wait_box(self, seconds=15.0):
        return wait_until("a box", self.open_box, seconds)

    def wait_no_box(self, seconds=5.0):
        """Waits until no box is open, and until what stood behind the last one is done."""
        wait_until("the box to close", lambda: self.open_box() is None, seconds)
        self.settle(seconds)

    def menu(self, name=""):
        return self.driver.ask("menu", menu=name)["entries"]

    def choose(self, entry, menu=""):
        self.driver.ask("choose", menu=menu, entry=entry)

    def timer(self, name):
        return self.driver.ask("timer", timer=name)

    def stall(self, seconds):
        """Lets the window's thread stand still for a while."""
        self.driver.ask("stall", ms=int(seconds * 1000))

    def settle(self, seconds=5.0):
        """Waits until everything that was asked for is done, unless a modal window holds it up."""
        state = {}

        def done():
            state.update(self.driver.ask("state"))
            return state["not_begun" if state["modal"] else "unfinished"] == 0

        wait_until("the windows to settle", done, seconds)
        if state["refused"]:
            raise AssertionError(f"could not be done when its turn came: {state['refused']}")
