"""A peer that is not our program: it says any bytes it likes and writes down all that it hears."""

import socket
import struct
import time
from dataclasses import dataclass

from waiting import wait_until

IP_PKTINFO = 8
SO_TIMESTAMPNS = 35
SO_RCVBUFFORCE = 33
BROADCAST = "255.255.255.255"


@dataclass(frozen=True)
class Datagram:
    """One datagram as it came off the wire."""

    data: bytes
    source: str
    port: int
    destination: str
    at: float  # Seconds, by the kernel's clock at its arrival.


class ForeignPeer:
    """Listens on the one port and says things from the other, as every peer of the office does."""

    def __init__(self, namespace, address, listening=4111, sending=4112):
        self.address = address
        self._target = (BROADCAST, listening)
        self._heard = []
        self._ear = namespace.socket()
        self._ear.setsockopt(socket.IPPROTO_IP, IP_PKTINFO, 1)
        self._ear.setsockopt(socket.SOL_SOCKET, SO_TIMESTAMPNS, 1)
        try:
            self._ear.setsockopt(socket.SOL_SOCKET, SO_RCVBUFFORCE, 8 << 20)
        except PermissionError:
            self._ear.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 8 << 20)
        self._ear.bind(("", listening))
        self._ear.setblocking(False)
        self._mouth = namespace.socket()
        self._mouth.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        self._mouth.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, b"eth0")
        self._mouth.bind(("", sending))

    def say(self, *texts):
        for text in texts:
            self._mouth.sendto(text, self._target)

    def announce(self, identity, name):
        self.say(b"***" + identity + b"=" + name)

    def introduce(self, identity, name):
        """Makes itself known and put on show: the first answer is met, the second one is shown."""
        self.say(b"**-" + identity + b"=" + name, b"**-" + identity + b"=" + name)

    def heard(self):
        """Everything that others have said so far, in the order of arrival."""
        while True:
            try:
                data, extras, _, (source, port) = self._ear.recvmsg(1 << 16, 256)
            except BlockingIOError:
                return list(self._heard)
            if source != self.address:
                destination, at = self._circumstances(extras)
                self._heard.append(Datagram(data, source, port, destination, at))

    @staticmethod
    def _circumstances(extras):
        values = {(level, kind): value for level, kind, value in extras}
        destination = struct.unpack("=I4s4s", values[socket.IPPROTO_IP, IP_PKTINFO][:12])[2]
        seconds, nanoseconds = struct.unpack("@ll", values[socket.SOL_SOCKET, SO_TIMESTAMPNS][:16])
        return socket.inet_ntoa(destination), seconds + nanoseconds / 1e9

    def texts(self, host=None):
        """What was said, by everybody or by one host."""
        return [said.data for said in self.heard() if host is None or said.source == host.address]

    def forget(self):
        self.heard()
        self._heard.clear()

    def wait_heard(self, text, seconds=10.0):
        wait_until(f"the datagram {text!r}", lambda: text in self.texts(), seconds)

    def all_within(self, seconds):
        """Listens for a while and gives all that was heard up to its end."""
        time.sleep(seconds)
        return self.texts()

    def close(self):
        self._ear.close()
        self._mouth.close()
