"""Ways to start: a second copy, a taken port, hidden, after a crash, without a display."""

from case import RealTest, plain

SECOND_COPY = "Vexlo Instant Messaging v1.5.3\n     is already running."
ANNOUNCE = b"***[ROOM12\\ALICE]=ALICE MEYER"


class SecondCopy(RealTest):
    def test_it_tells_the_version_and_ends_and_touches_nothing(self):
        host = self.alice()
        first = self.up(host)
        self.wait_quiet(first)
        foreign = self.office.foreign_peer()
        before = host.snapshot()
        stored = host.stored_path_file().stat().st_mtime_ns

        second = host.start()
        box = second.windows.wait_box()
        self.assertEqual(plain(box.text), SECOND_COPY)
        box.answer("OK")
        second.wait_end()

        self.assertEqual(host.snapshot(), before)
        self.assertEqual(host.stored_path_file().stat().st_mtime_ns, stored)
        self.assertEqual(foreign.texts(), [])
        self.assertEqual(first.boxes_shown(), [])
        self.assertNotIn("frmMain", second.windows_shown())

    def test_the_first_copy_goes_on_as_before(self):
        host = self.alice()
        alice, bob = self.acquainted(host, self.bob())
        second = host.start()
        second.windows.wait_box()
        self.send(bob, "still there?", "Alice Meyer")
        self.pops_up(alice, "Bob", "BOB> still there?")

    def test_it_tells_so_with_the_hidden_start_too(self):
        host = self.alice()
        self.up(host)
        second = host.start("/m")
        self.assertEqual(plain(second.windows.wait_box().text), SECOND_COPY)

    def test_another_copy_of_the_folder_is_another_program(self):
        """Several hosts share one process table here, and all run the same program."""
        self.acquainted(self.alice(), self.bob())

    def test_a_crash_leaves_nothing_that_bars_the_next_start(self):
        host = self.alice()
        alice = self.up(host)
        self.wait_quiet(alice)
        alice.kill()
        again = self.up(host)
        self.assertEqual(again.boxes_shown(), [])


class StoredPath(RealTest):
    def test_every_start_stores_where_the_program_lies(self):
        host = self.alice()
        self.up(host)
        stored = host.stored_path_file().read_text(encoding="utf-8")
        self.assertIn("[NORVAN]", stored)
        self.assertIn(f"Path={host.app}/vexloim.exe", stored)


class TakenPort(RealTest):
    def test_a_taken_listening_port_is_told_and_ends_the_program(self):
        self._told_and_ended(4111)

    def test_a_taken_sending_port_is_told_and_ends_the_program(self):
        self._told_and_ended(4112)

    def _told_and_ended(self, port):
        host = self.alice()
        settings = host.file("settings.txt")
        host.occupy(port)
        alice = host.start()
        box = alice.windows.wait_box()
        self.assertEqual(box.text, f"Port {port} is in use.")
        box.answer("OK")
        self.assertEqual(alice.wait_end(), 0)
        self.assertEqual(len(alice.boxes_shown()), 1)
        self.assertEqual(host.file("settings.txt"), settings)

    def test_a_hidden_start_ends_without_a_word(self):
        host = self.alice()
        host.occupy(4111)
        alice = host.start("/m")
        self.assertEqual(alice.wait_end(30.0), 0)
        self.assertEqual(alice.boxes_shown(), [])

    def test_it_tells_the_port_that_the_settings_name(self):
        host = self.alice(LISTENINGPORT="4200")
        host.occupy(4200)
        self.assertEqual(host.start().windows.wait_box().text, "Port 4200 is in use.")


class HiddenStart(RealTest):
    def hidden(self, *arguments):
        """Starts the program and waits until it has made itself known."""
        foreign = self.office.foreign_peer()
        alice = self.alice().start(*arguments)
        foreign.wait_heard(ANNOUNCE, seconds=30.0)
        self.wait_quiet(alice)
        return alice, foreign

    def test_the_main_window_stays_hidden(self):
        alice, _ = self.hidden("/m")
        self.wait_that("the end of the start", lambda: not alice.main.visible)
        self.wait_that("the splash to go", lambda: "loading" not in alice.windows.visible())
        self.assertEqual(alice.boxes_shown(), [])

    def test_it_stays_hidden_and_takes_part(self):
        alice, foreign = self.hidden("/m")
        self.wait_that("the end of the start", lambda: not alice.main.visible)
        foreign.forget()
        foreign.all_within(6.0)  # Longer than the watch needs to come round.
        foreign.announce(b"[ROOM99\\EVE]", b"EVE")
        foreign.wait_heard(b"**-[ROOM12\\ALICE]=ALICE MEYER")
        self.assertFalse(alice.main.visible)

    def test_a_message_pops_up_over_a_hidden_program(self):
        alice, foreign = self.hidden("/m")
        self.wait_that("the end of the start", lambda: not alice.main.visible)
        foreign.say(b"[ROOM99\\EVE][ROOM12\\ALICE]EVE> psst")
        self.pops_up(alice, "[Room99\\eve]", "EVE> psst")
        self.assertFalse(alice.main.visible)

    def test_the_switch_counts_in_any_case(self):
        alice, _ = self.hidden("/M")
        self.wait_that("the end of the start", lambda: not alice.main.visible)

    def test_the_switch_counts_only_alone(self):
        alice, _ = self.hidden("/m", "now")
        alice.wait_up()

    def test_the_setting_hides_it_too(self):
        host = self.alice(MINIMIZEONSTART="1")
        alice = host.start()
        self.wait_that("the watch", lambda: alice.windows.timer("Timer1")["active"], 30.0)
        self.wait_that("the end of the start", lambda: not alice.main.visible, 8.0)
        self.assertEqual(alice.boxes_shown(), [])


class NoDisplay(RealTest):
    def test_it_says_that_it_needs_one_and_ends_with_status_2(self):
        host = self.alice()
        before = host.snapshot()
        program = host.start(screen="", driven=False)
        self.assertEqual(program.wait_end(), 2)
        self.assertIn("needs a display", program.errors)
        self.assertEqual(host.snapshot(), before)

    def test_a_display_that_does_not_answer_is_none(self):
        host = self.alice()
        before = host.snapshot()
        program = host.start(screen=":77", driven=False)
        self.assertEqual(program.wait_end(), 2)
        self.assertIn("needs a display", program.errors)
        self.assertEqual(host.snapshot(), before)


class Splash(RealTest):
    def test_the_splash_comes_before_the_main_window_and_goes(self):
        alice = self.up(self.alice())
        shown = alice.windows_shown()
        self.assertEqual(shown[0], "loading")
        self.assertIn("frmMain", shown)
        self.wait_that("the splash to go", lambda: "loading" not in alice.windows.visible())
