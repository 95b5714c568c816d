"""A test case with a screen of its own."""

import screen


class OnScreen:
    """For a test case to begin with; without the tools for a screen each of its tests is skipped."""

    also_missing = ()  # Tools beside those of the screen that its tests need and that are not here.

    def setUp(self):
        missing = [*screen.missing_tools(), *self.also_missing]
        if missing:
            self.skipTest(f"missing here: {', '.join(missing)}")
        super().setUp()
        self.screen = screen.Screen()
        self.addCleanup(self.screen.close)
