"""Eight people who work, a ninth who comes and goes, and somebody foreign who talks in between."""

import random
import time

from case import shown_name
from desk_test import DeskTest

EIGHT = ("Alice", "Bob", "Carl", "Dora", "Emil", "Frida", "Gustav", "Hanna")
RESPONSES = ("I'm away from my desk", "I'm out of the office", "I'm in a meeting")
FOREIGN = ((b"[ROOM98\\DAN]", b"DAN"), (b"[ROOM99\\EVE]", b"EVE"))
NOISE = (b"", b"]", b"no brackets", b"[A][B]C", b"]]", b"\xff" * 40, b"[" * 900, b"---[A\\B]=C")
# What the toolkit says of a desktop without a screen, and without sound.
TOOLKIT = (
    "This plugin does not support ",
    "qt.core.qobject.connect: QObject::connect: No such signal QPlatformNativeInterface",
    "PulseAudioService: pa_context_connect() failed",
    "No audio device detected",
)
# What a development build notes when it takes its port.
NOTE = " bytes of datagrams may wait"


class Staff(DeskTest):
    """One act at a time, chosen from one seed. Whatever is sent is looked for in the log of whoever
    is to have it, at the next rest."""

    beat = 0.7  # Seconds from act to act.

    def gather(self, seed):
        self.chance = random.Random(seed)
        self.acts = self.number = 0
        self.story = []
        self.owed = []  # Who is to have which text.
        self.foreign = self.office.foreign_peer()
        started = [self.desk(name).start() for name in (*EIGHT, "Ivo")]
        *self.people, self.guest = [program.wait_up() for program in started]
        for identity, name in FOREIGN:
            self.foreign.introduce(identity, name)
        self.rest()

    def desk(self, name):
        number = len(self.office.hosts())
        host = self.office.host(f"ROOM{number:02}", name.lower(), self.gateway)
        host.write_settings(name.upper(), AUTORESPONSEALLOW="1", STARTWITHWINDOWS="0")
        return host

    # Work.

    def work_until(self, end):
        """People act until that moment; a beat that is missed is not made up for."""
        while time.monotonic() < end:
            begin = time.monotonic()
            self.talk_between()
            self.act(*self.chance.choices(*zip(*self.habits())))
            time.sleep(max(0.0, begin + self.beat - time.monotonic()))

    def work_through(self):
        """Everything that people do, once."""
        for doing, _ in self.habits():
            self.talk_between()
            self.act(doing)

    def act(self, doing):
        self.acts += 1
        person = self.chance.choice(self.people)
        self.story.append(f"{self.number}: {person.name} {doing.__name__}")
        doing(person)

    def habits(self):
        """What people do, and how often of a hundred times."""
        return (
            (self.write, 30), (self.write_to_all, 4), (self.press_quick_button, 5),
            (self.turn_to_popup, 40), (self.close_all, 4), (self.look_at_history, 4),
            (self.look_at_log, 3), (self.look_at_settings, 3), (self.find_others, 2),
            (self.be_away, 2), (self.rename, 1), (self.pull_cable, 1), (self.guest_goes, 1),
        )  # fmt: skip

    def talk_between(self):
        identity, name = self.chance.choice(FOREIGN)
        to = self.chance.choice(self.people).host.identity
        self.foreign.say(
            self.chance.choice(NOISE),
            self.chance.choice((b"**-", b"-**")) + identity + b"=" + name,
            identity + to + name + b"> " + self.text().encode(),
        )
        self.foreign.forget()

    def text(self):
        self.number += 1
        return f"number {self.number}."

    def others(self, person):
        """Who of the eight stands in the person's list."""
        rows = person.main["allusers"].rows
        return [each for each in self.people if each is not person and shown_name(each) in rows]

    def pick(self, person, *others):
        """Clicks the others' rows, again if somebody has come into the list between look and click."""
        users = person.main["allusers"]
        names = [shown_name(each) for each in others]

        def picked():
            for number, name in enumerate(names):
                users.click_row(name, *(["ctrl"] if number else []))
            person.windows.settle()
            now = users.read()
            return {now["rows"][row] for row in now["selected"]} == set(names)

        self.wait_that(f"the choice of {', '.join(names)}", picked)

    def pick_one(self, person):
        others = self.wait_that("somebody on the list", lambda: self.others(person))
        self.pick(person, self.chance.choice(others))

    def write(self, person):
        others = self.others(person)
        some = self.chance.sample(others, min(len(others), self.chance.choice((1, 1, 1, 3))))
        if some:
            text = self.write_to(person, *some)
            self.owed += [(each, text) for each in some]

    def write_to(self, person, *others):
        text = self.text()
        self.pick(person, *others)
        person.main["messagetext"].type(text)
        person.windows.settle()
        person.main["sendbtn"].click()
        person.windows.settle()
        return text

    def write_to_all(self, person):
        text = self.text()
        self.send_to_all(person, text)
        self.owed += [(each, text) for each in self.people if each is not person]
        person.windows.settle()

    def press_quick_button(self, person):
        self.pick_one(person)
        person.main["qb(4)"].click()
        person.windows.settle()

    def turn_to_popup(self, person):
        popups = person.windows.popups()
        if not popups:
            return self.write(person)
        popup = person.windows[self.chance.choice(popups)]
        names = {shown_name(each): each for each in self.people if each is not person}
        sender = names.get(popup["messagefrom"].text)
        what = self.chance.random()
        if sender and what < 0.4:
            self.answer(popup, sender)
        elif sender and what < 0.5:
            popup["qb(19)"].click()
        elif sender and what < 0.6:
            self.forward(person, popup)
        else:
            popup["Command1"].click()
        return person.windows.settle()

    def answer(self, popup, sender):
        text = self.text()
        popup["temp"].type(text)
        popup["Command2"].click()
        self.owed.append((sender, text))

    def forward(self, person, popup):
        popup["fwd"].click()
        draft = person.main["messagetext"]
        self.wait_that("the draft", lambda: draft.text.startswith("Begin forwarded message:"))
        self.pick_one(person)
        person.windows.settle()
        person.main["sendbtn"].click()
        self.wait_that("the forward to go", lambda: not draft.text)

    def close_all(self, person):
        self.all_quiet()
        if person.main["dissmissall"].enabled:
            person.main["dissmissall"].click()
            self.wait_that("no popups", lambda: not person.windows.popups())

    def look_at_history(self, person):
        person.main["history"].click()
        window = person.windows["historyfrm"]
        self.wait_that("the history", lambda: window.visible)
        if window["ListView1"].rows:
            window["ListView1"].click(row=0)
        self.leave_window(person, "historyfrm", "closebtn")

    def look_at_log(self, person):
        self.tool(person, "View Logs")
        window = person.windows["log"]
        self.wait_that("the log", lambda: window.visible)
        if window["lstMessages"].rows:  # It is empty just behind a roll into a file.
            window["lstMessages"].click(row=0)
        self.leave_window(person, "log", "Command2")

    def look_at_settings(self, person):
        self.open_settings(person)
        self.turn_to(person, self.chance.randrange(5))
        self.close_settings(person, self.chance.choice(("savebtn", "cancelbtn")))
        self.all_quiet()

    def leave_window(self, person, name, button):
        person.windows.settle()
        person.windows[name][button].click()
        self.wait_that(f"no {name}", lambda: not person.windows[name].visible)

    def find_others(self, person):
        self.tool(person, "Find Other Users")
        person.windows.settle()
        self.all_quiet()

    def be_away(self, person):
        """Somebody is away while others write; nobody else is at that time."""
        self.all_quiet()  # What comes before is told in the log, what comes behind is not.
        response = self.chance.choice(RESPONSES)
        banner = person.main["Label5"]
        person.main["autorespond"].click()
        person.windows.settle()
        person.windows.choose(response, "autores")
        self.wait_that("the banner", lambda: response in banner.text)
        name = person.host.settings("MY NAME")
        for other in self.others(person)[:3]:
            if person in self.others(other):
                text = self.write_to(other, person)
                self.owed.append((other, f"{text}\r\n{name}> (Auto Resp) {response}"))
        self.all_quiet()
        person.main["messagetext"].type("b")
        self.wait_that("the banner to go", lambda: not banner.visible)
        person.main["Command3"].click()
        person.windows.settle()

    def rename(self, person):
        """Back and forth between two names."""
        old = person.host.settings("MY NAME")
        new = old.removesuffix(" MEYER") if old.endswith(" MEYER") else old + " MEYER"
        person.main.run("Command1")
        person.windows.wait_box().answer("OK", new)
        person.windows.wait_no_box()
        self.all_known()

    def pull_cable(self, person):
        """A message is lost, the box says why, and the watch finds the cable back."""
        self.all_quiet()
        person.host.cable_out()
        self.send_to_all(person, self.text())
        box = self.wait_box_reading(person, "No Network Connection.")
        box.answer("OK")
        person.windows.wait_no_box()
        person.host.cable_in()
        self.wait_that("the lists to live", lambda: person.main["allusers"].enabled, 15.0)
        self.all_known()

    def guest_goes(self, _):
        """The ninth leaves or crashes, and comes again."""
        if self.chance.random() < 0.5:
            self.guest.kill()
        else:
            self.leave(self.guest)
        self.guest.close()
        self.guest = self.guest.host.start().wait_up()
        self.all_known()

    # Rest.

    def rest(self):
        """Everything on the way arrives, all windows close, and what a person sees is right."""
        self.all_quiet()
        for person in self.everybody():
            self.close_all(person)
        self.all_known()
        for person in self.everybody():
            self.assertIsNone(person.windows.open_box(), person.name)
            self.assertEqual(person.windows.visible(), ["frmMain"], person.name)
            self.assertEqual(person.main["messagetext"].text, "", person.name)
            told = person.errors.splitlines()
            told = [each for each in told if not each.startswith(TOOLKIT) and not each.endswith(NOTE)]
            self.assertEqual(told, [], person.name)
        self.all_paid()

    def all_quiet(self):
        """No row waits in any queue, and no further one is on its way."""
        self.wait_quiet(*self.everybody(), seconds=60.0)

    def everybody(self):
        return [*self.people, self.guest]

    def all_known(self):
        """All nine stand in all lists, in at most three rounds, and in all directories."""
        names = {shown_name(each) for each in self.everybody()}
        for _ in range(3):
            self.all_quiet()
            if all(names <= set(each.main["allusers"].rows) for each in self.everybody()):
                break
            self.everybody()[0].main.run("getusers")
        strangers = {name.decode().capitalize() for _, name in FOREIGN}
        identities = {each.host.identity for each in self.everybody()}
        for person in self.everybody():
            self.once_each(person.main["allusers"].rows, names, strangers)
            kept = [row.split(b"=")[0] for row in person.host.file("users.txt").splitlines()]
            self.once_each(kept, identities, {identity for identity, _ in FOREIGN})

    def once_each(self, rows, wanted, allowed):
        """The rows are those wanted and some of those allowed, none of them twice."""
        self.assertEqual(sorted(rows), sorted(wanted | (set(rows) & allowed)))

    def all_paid(self):
        """Each message stands in the log of whoever was to have it."""
        logs = {}
        for person, text in self.owed:
            if person not in logs:
                folder = person.host.app / "logs"
                logs[person] = b"".join(log.read_bytes() for log in folder.iterdir())
            if text.encode() not in logs[person]:
                story = "\n".join(self.story[-40:])
                self.fail(f"{person.name} has never had {text!r}\n{story}")
        self.owed.clear()
