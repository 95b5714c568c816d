"""The companion for the terminal speaks to real messengers, and asks who is there."""

import json
import threading

import desk_files
import tap
from case import RealTest
from listener import Listener

ALICE, BOB, CARL = b"[ROOM12\\ALICE]", b"[ROOM07\\BOB]", b"[ROOM33\\CARL]"
# What a popup tells of a sender whom the directory does not know.
UNKNOWN = "[Door\\bell]"
DONE, FAILED, USAGE, NOBODY, NOTHING, IN_USE = range(6)


class TapSend(RealTest):
    def knowing(self, host, *rows, **groups):
        """The host's folder, with these people in its directory."""
        (host.app / "users.txt").write_bytes(b"".join(row + b"\r\n" for row in rows))
        if groups:
            (host.app / "groups.txt").write_bytes(desk_files.saved_groups(**groups))
        return host

    def door(self, *rows, **groups):
        """A machine by the door: no messenger runs on it."""
        host = self.newcomer("DOOR", "bell")
        host.write_settings("DOOR BELL")
        return self.knowing(host, *rows, **groups)

    def says(self, host, *arguments, status=DONE, **how):
        ran = tap.run(host, *arguments, **how)
        self.assertEqual(ran.status, status, ran)
        return ran

    def test_a_message_to_a_name_pops_up_and_is_kept_in_the_log(self):
        door = self.door(BOB + b"=BOB")
        bob, carl = self.acquainted(self.bob(), self.carl())
        foreign = self.office.foreign_peer()
        before = door.snapshot()
        said = self.says(door, "send", "--to", "bob", "Somebody", "is at the door")
        self.assertEqual(said.output, "sent to Bob [ROOM07\\BOB]\n")
        self.pops_up(bob, UNKNOWN, "DOOR BELL> Somebody is at the door")
        text = b"DOOR BELL> Somebody is at the door"
        self.assertEqual(foreign.texts(door), [b"[DOOR\\BELL]" + BOB + text])
        self.assertIn(b"\t\r\n" + text + b"\r\n---\r\n", bob.host.file("logs/logtemp.txt"))
        self.no_popup(carl)
        self.assertEqual(door.snapshot(), before)

    def test_several_names_a_group_and_everybody_are_written_to(self):
        members = {1: ["[ROOM33\\CARL]", "[ROOM66\\GONE]"]}
        door = self.door(BOB + b"=BOB", CARL + b"=CARL DUNN", names=["GUARDS"], members=members)
        bob, carl = self.acquainted(self.bob(), self.carl())
        self.says(door, "send", "--to", "Bob", "--to", "Carl Dunn", "Parcel")
        self.pops_up(bob, UNKNOWN, "DOOR BELL> Parcel")
        self.pops_up(carl, UNKNOWN, "DOOR BELL> Parcel")
        self.says(door, "send", "--group", "guards", "Stranger")
        self.pops_up(carl, UNKNOWN, "Stranger", slot=1)
        self.says(door, "send", "--all", "Fire drill")
        self.pops_up(bob, UNKNOWN, "DOOR BELL> (To All) Fire drill", slot=1)
        self.pops_up(carl, UNKNOWN, "DOOR BELL> (To All) Fire drill", slot=2)

    def test_the_companion_says_what_the_messenger_beside_it_says(self):
        host = self.knowing(self.alice(), BOB + b"=BOB")
        alice, bob = self.acquainted(host, self.bob())
        foreign = self.office.foreign_peer()
        self.send(alice, "Müller ruft", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Müller ruft")
        self.says(host, "send", "--to", "Bob", "Müller ruft")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> Müller ruft", slot=1)
        wanted = ALICE + BOB + "ALICE MEYER> Müller ruft".encode("cp1252")
        self.assertEqual(foreign.texts(host), [wanted, wanted])
        self.assertTrue(alice.running)

    def test_nobody_writes_to_oneself_but_a_script_of_another_identity_does(self):
        host = self.alice()
        alice = self.up(host)
        self.knows(alice, ALICE + b"=ALICE MEYER")
        foreign = self.office.foreign_peer()
        said = self.says(host, "send", "--to", "Alice Meyer", "Lunch", status=NOBODY)
        self.assertEqual(said.output, "")
        self.assertIn("USERNAME=script vexlotap send", said.errors)
        host.more_environment["USERNAME"] = "script"
        self.says(host, "send", "--to", "Alice Meyer", "Lunch")
        self.pops_up(alice, "[Room12\\script]", "ALICE MEYER> Lunch")
        # The messenger beside it may still be announcing itself.
        messages = [text for text in foreign.texts(host) if not text.startswith(b"**")]
        self.assertEqual(messages, [b"[ROOM12\\SCRIPT]" + ALICE + b"ALICE MEYER> Lunch"])

    def test_a_text_is_read_from_standard_input_with_its_lines(self):
        door = self.door(BOB + b"=BOB")
        foreign = self.office.foreign_peer()
        self.says(door, "send", "--to", "Bob", entered="Build 7 failed:\nlink error\n\n")
        text = b"DOOR BELL> Build 7 failed:\r\nlink error"
        foreign.wait_heard(b"[DOOR\\BELL]" + BOB + text)

    def test_another_name_and_another_port_are_those_of_the_command_line(self):
        foreign = self.office.foreign_peer(5111, 5112)
        door = self.door(BOB + b"=BOB")
        self.says(door, "send", "--name", "Cron", "--port", "5111", "--to", "Bob", "Backup?")
        foreign.wait_heard(b"[DOOR\\BELL]" + BOB + b"CRON> Backup?")

    def test_a_name_that_is_not_in_the_file_is_asked_for(self):
        bob = self.up(self.bob())
        door = self.door()
        said = self.says(door, "send", "--to", "Bob", "--for", "10", "Hello")
        self.assertEqual(said.output, "sent to Bob [ROOM07\\BOB]\n")
        self.pops_up(bob, "Door Bell", "DOOR BELL> Hello")

    def test_nothing_is_sent_when_one_of_the_names_is_nobodys(self):
        door = self.door(BOB + b"=BOB")
        foreign = self.office.foreign_peer()
        names = ["--to", "Bob", "--to", "Eve"]
        said = self.says(door, "send", *names, "--for", "0.3", "x", status=NOBODY)
        self.assertEqual(said.output, "")
        self.assertIn('nobody is called "Eve"', said.errors)
        self.assertEqual(foreign.texts(door), [b"***[DOOR\\BELL]=DOOR BELL"])

    def test_the_end_of_a_name_is_enough_and_it_is_told_whom_else_it_fits(self):
        door = self.door(CARL + b"=CARL DUNN", b"[ROOM34\\DORA]=DORA DUNN")
        said = self.says(door, "send", "--json", "--to", "Dunn", "Hi")
        told = {
            "sent": True, "name": "Carl Dunn", "identity": "[ROOM33\\CARL]", "others": ["Dora Dunn"],
        }  # fmt: skip
        self.assertEqual(json.loads(said.output), told)
        self.assertIn("also the end of Dora Dunn", said.errors)

    def test_a_long_text_is_refused_or_cut_when_that_is_wanted(self):
        door = self.door(BOB + b"=BOB")
        foreign = self.office.foreign_peer()
        said = self.says(door, "send", "--to", "Bob", "x" * 971, status=USAGE)
        self.assertIn("970", said.errors)
        self.says(door, "send", "--to", "Bob", "--cut", "y" * 971)
        foreign.wait_heard(b"[DOOR\\BELL]" + BOB + b"DOOR BELL> " + b"y" * 970)
        self.assertEqual(len(foreign.texts(door)), 1)

    def test_a_command_line_without_sense_is_told_so(self):
        door = self.door(BOB + b"=BOB")
        for arguments in (
            ["send", "Hello"],
            ["send", "--to", "Bob", "--all", "Hello"],
            ["send", "--to", "", "Hello"],
            ["send", "--to", "Bob", ""],
            ["send", "--to", "Bob", "--port", "70000", "Hello"],
            ["send", "--to", "Bob", "--wait", "soon", "Hello"],
            ["send", "--shout", "Hello"],
            ["send", "--folder", "/nowhere", "--all", "Hello"],
            ["who", "Bob"],
            ["whom"],
            [],
        ):
            with self.subTest(arguments=arguments):
                said = self.says(door, *arguments, status=USAGE)
                self.assertEqual(said.output, "")
                self.assertIn("vexlotap: ", said.errors)

    def test_ctrl_c_while_it_asks_keeps_the_message_in(self):
        door = self.door(BOB + b"=BOB")
        foreign = self.office.foreign_peer()
        announcement = b"***[DOOR\\BELL]=DOOR BELL"
        asking = Listener(door, "send", "--ask", "--for", "30", "--to", "Bob", "x", sign=b"")
        foreign.wait_heard(announcement)
        self.assertNotEqual(asking.stop(), DONE)
        self.assertEqual(foreign.texts(door), [announcement])

    def test_without_a_network_it_is_told_so(self):
        door = self.door(BOB + b"=BOB")
        door.link_down()
        said = self.says(door, "send", "--all", "x", status=FAILED)
        self.assertEqual(said.output, "")
        self.assertIn("No route to host.", said.errors)
        self.says(door, "who", "--for", "1", status=FAILED)

    def test_an_answer_is_waited_for_and_printed(self):
        door = self.door(BOB + b"=BOB")
        bob = self.up(self.bob())
        self.wait_quiet(bob)
        ran = []
        asking = threading.Thread(
            target=lambda: ran.append(tap.run(door, "send", "--to", "Bob", "--wait", "25", "In?"))
        )
        asking.start()
        self.pops_up(bob, UNKNOWN, "DOOR BELL> In?")
        foreign = self.office.foreign_peer()
        foreign.say(BOB + ALICE + b"BOB> not for you", b"[ROOM07\\BOB][ALL]BOB> (To All) nor this")
        foreign.say(BOB + b"[DOOR\\BELL]DOOR BELL> In?\r\nBOB> Yes\x1b[2J")
        asking.join()
        self.assertEqual(ran[0].status, DONE, ran)
        answer = "Bob:\n  DOOR BELL> In?\n  BOB> Yes\\x1b[2J\n"
        self.assertEqual(ran[0].output, "sent to Bob [ROOM07\\BOB]\n" + answer)

    def test_no_answer_is_a_status_of_its_own(self):
        door = self.door(BOB + b"=BOB")
        said = self.says(door, "send", "--to", "Bob", "--wait", "0.2", "In?", status=NOTHING)
        self.assertEqual(said.errors, "vexlotap: nobody has answered\n")

    def test_the_port_of_an_answer_may_be_taken(self):
        door = self.door(BOB + b"=BOB")
        foreign = self.office.foreign_peer()
        door.occupy(4111)
        message = ["send", "--to", "Bob", "--wait", "0.2", "In?"]
        said = self.says(door, *message, status=IN_USE, way=tap.WITHOUT_RAW_SOCKETS)
        self.assertIn("another program holds the port", said.errors)
        self.assertEqual(foreign.texts(door), [])
        self.says(door, *message, status=NOTHING)
        foreign.wait_heard(b"[DOOR\\BELL]" + BOB + b"DOOR BELL> In?")

    def test_who_lists_everybody_who_is_there(self):
        door = self.door(b"[ROOM66\\GONE]=GONE")
        alice, bob, _ = self.acquainted(self.alice(), self.bob(), self.carl())
        said = self.says(door, "who", "--for", "2")
        people = [("Alice Meyer", ALICE), ("Bob", BOB), ("Carl Dunn", CARL)]
        lines = [f"{name}\t{identity.decode()}\n" for name, identity in people]
        self.assertEqual(said.output, "".join(lines))
        self.says(door, "who", "--for", "2")  # The first round has emptied their lists.
        self.shows(alice, "Door Bell")
        self.knows(bob, b"[DOOR\\BELL]=DOOR BELL", BOB + b"=BOB", ALICE + b"=ALICE MEYER",
                   CARL + b"=CARL DUNN")  # fmt: skip

    def test_who_asks_beside_the_messenger_under_its_name(self):
        host = self.knowing(self.alice(), BOB + b"=BOB")
        _, bob = self.acquainted(host, self.bob())
        said = self.says(host, "who", "--for", "2")
        self.assertEqual(said.output, "Alice Meyer\t[ROOM12\\ALICE]\nBob\t[ROOM07\\BOB]\n")
        self.sees(bob, ["Alice Meyer", "Bob"])
        self.knows(bob, BOB + b"=BOB", ALICE + b"=ALICE MEYER")

    def test_who_may_not_listen_beside_the_messenger_and_tells_what_that_one_knows(self):
        host = self.knowing(self.alice(), BOB + b"=BOB")
        self.wait_quiet(self.up(host))
        said = self.says(host, "who", "--json", way=tap.WITHOUT_RAW_SOCKETS)
        fresh = [json.loads(line)["fresh"] for line in said.output.splitlines()]
        self.assertEqual(fresh, [False, False])
        self.assertIn("users.txt", said.errors)

    def test_who_may_listen_without_a_word(self):
        door = self.door()
        foreign = self.office.foreign_peer()
        said = self.says(door, "who", "--silent", "--for", "0.3", status=NOTHING)
        self.assertEqual(said.output, "")
        self.assertIn("nobody was heard", said.errors)
        self.assertEqual(foreign.texts(door), [])

    def test_who_knows_the_files_without_a_network(self):
        members = {1: ["[ROOM07\\BOB]"]}
        door = self.door(BOB + b"=BOB", CARL + b"=CARL DUNN", names=["GUARDS"], members=members)
        door.link_down()
        known = self.says(door, "who", "--known", "--json").output.splitlines()
        self.assertEqual(
            [json.loads(line) for line in known],
            [
                {"name": "Bob", "identity": "[ROOM07\\BOB]", "fresh": False},
                {"name": "Carl Dunn", "identity": "[ROOM33\\CARL]", "fresh": False},
            ],
        )
        self.assertEqual(self.says(door, "who", "--groups").output, "GUARDS\tBob\n")
