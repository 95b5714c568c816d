"""What the machine refuses the companion."""

import tap
from case import RealTest


class Refused(RealTest):
    def test_settings_that_name_no_port_are_refused(self):
        carl = self.carl(LISTENINGPORT=str(4111 + 65536))
        ran = tap.run(carl, "listen", "--for", "0.1")
        self.assertEqual((ran.status, ran.errors), (1, "vexlotap: Invalid argument\n"))
