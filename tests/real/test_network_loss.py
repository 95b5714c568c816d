"""The network is not there at the start, goes away, and comes back."""

from case import RealTest

ALICE = b"[ROOM12\\ALICE]"
ANNOUNCE = b"***" + ALICE + b"=ALICE MEYER"
STAMP = rb"\d\d-\d\d-\d\d:\d\d:\d\d[ap]:"


class NoNetworkAtStart(RealTest):
    def started_without_network(self, *arguments):
        host = self.alice()
        host.link_down()
        return host.start(*arguments)

    def test_it_is_told_once_and_the_program_stays_up(self):
        alice = self.started_without_network()
        box = alice.windows.wait_box()
        self.assertEqual(box.text, "No Network Connection.")
        box.answer("OK")
        alice.wait_up()
        self.status(alice, "Network Error")
        self.wait_probe(alice)
        self.assertEqual(alice.boxes_shown(), ["No Network Connection."])
        self.assertEqual(alice.main["statustext"].text, "Network Error")
        self.assertFalse(alice.main["allusers"].enabled)
        self.assertFalse(alice.main["List1"].enabled)

    def wait_probe(self, program):
        """A failed probe is seen by the lists going dead."""
        users = program.main["allusers"]
        self.wait_that(f"a probe of {program.name}", lambda: not users.enabled, 8.0)

    def test_the_lists_are_alive_until_the_first_probe_fails(self):
        alice = self.started_without_network()
        alice.windows.wait_box().answer("OK")
        alice.wait_up()
        self.assertTrue(alice.main["allusers"].enabled)
        self.wait_probe(alice)

    def test_the_five_second_watch_finds_the_network_back(self):
        bob = self.up(self.bob())
        self.wait_quiet(bob)
        alice = self.started_without_network()
        alice.windows.wait_box().answer("OK")
        alice.wait_up()
        self.wait_probe(alice)
        foreign = self.office.foreign_peer()
        alice.host.link_up()

        foreign.wait_heard(ANNOUNCE, seconds=7.0)
        self.assertEqual(foreign.texts(alice.host)[:2], [b" ", ANNOUNCE])
        self.status(alice, "Vexlo - Alice Meyer Listening")
        self.shows(alice, "Bob")
        self.shows(bob, "Alice Meyer")
        self.assertTrue(alice.main["allusers"].enabled)
        self.assertRegex(
            alice.host.file("logs/logtemp.txt"),
            rb"^" + STAMP + rb"Vexlo IM\.\t\r\n---\r\n"
            rb"(" + STAMP + rb"Network Error No route to host\.\r\n){2,}"
            + STAMP + rb"Network Connection Restored\r\n$",
        )  # fmt: skip
        self.assertEqual(alice.boxes_shown(), ["No Network Connection."])

    def test_a_hidden_start_tells_nothing_and_finds_the_network_back(self):
        alice = self.started_without_network("/m")
        self.wait_that("the log to tell", lambda: self._log_tells_error(alice.host), 30.0)
        foreign = self.office.foreign_peer()
        alice.host.link_up()
        foreign.wait_heard(ANNOUNCE, seconds=7.0)
        self.assertEqual(alice.boxes_shown(), [])

    @staticmethod
    def _log_tells_error(host):
        return "logtemp.txt" in host.logs() and b"Network Error" in host.file("logs/logtemp.txt")


class NoNetworkAtStartBehindAGateway(NoNetworkAtStart):
    gateway = True


class NetworkLostLater(RealTest):
    def setUp(self):
        super().setUp()
        self.peers = self.acquainted(self.alice(), self.bob())

    def lose_and_find(self, lose, find):
        alice, bob = self.peers
        lose()
        self.send(alice, "into the void", "Bob")
        box = alice.windows.wait_box()
        self.assertEqual(box.text, "No Network Connection.")
        self.assertEqual(alice.main["statustext"].text, "Network Error")
        box.answer("OK")
        alice.windows.wait_no_box()
        self.assertEqual(alice.main["messagetext"].text, "")
        self.wait_that("the lists to go dead", lambda: not alice.main["allusers"].enabled, 8.0)
        self.assertEqual(alice.main["statustext"].text, "Network Error")

        find()
        self.wait_that("the lists to live", lambda: alice.main["allusers"].enabled, 8.0)
        self.status(alice, "Vexlo - Alice Meyer Listening")
        self.all_on_all_lists(alice, bob)
        self.send(alice, "back again", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> back again")
        self.assertEqual(alice.boxes_shown(), ["No Network Connection."])

    def test_the_interface_goes_and_comes_back(self):
        host = self.peers[0].host
        self.lose_and_find(host.link_down, host.link_up)

    def test_an_idle_program_does_not_notice_and_misses_what_was_said(self):
        alice, bob = self.peers
        bob.host.link_down()
        self.send(alice, "while you were away", "Bob")
        self.passing_status(alice, "Message sent to Bob")
        self.no_popup(bob)
        bob.host.link_up()
        self.send(alice, "here again?", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> here again?")
        self.assertEqual(bob.boxes_shown(), [])

    def test_the_cable_goes_out_and_in_again(self):
        host = self.peers[0].host
        self.lose_and_find(host.cable_out, host.cable_in)


class NetworkLostLaterBehindAGateway(NetworkLostLater):
    """With a route to a gateway the kernel itself takes what is said into a pulled cable."""

    gateway = True

    def test_the_cable_goes_out_and_in_again(self):
        alice, bob = self.peers
        alice.host.cable_out()
        self.send(alice, "into the wall", "Bob")
        self.passing_status(alice, "Message sent to Bob")
        alice.host.cable_in()
        self.send(alice, "back again", "Bob")
        self.pops_up(bob, "Alice Meyer", "ALICE MEYER> back again")
