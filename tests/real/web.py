"""A web host on the segment: real HTTP, from a host of its own, on the port that browsers take."""

import http.server
import socket
import threading


class Page:
    """What is served under one path."""

    def __init__(self, text, status=200, cut=False):
        self.content = text.encode("cp1252")
        self.status = status
        self.cut = cut  # The connection ends before all that was promised has come.
        self.free = threading.Event()  # Cleared, it holds the answer back.
        self.free.set()


class WebHost:
    """Serves pages by path, says 404 to every other path, and notes what it was asked for."""

    def __init__(self, host, pages):
        self.address = host.address
        self.asked = []
        line = host.namespace.socket(kind=socket.SOCK_STREAM)
        line.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        line.bind(("", 80))
        self._server = http.server.HTTPServer(
            line.getsockname(), _handler(pages, self.asked), bind_and_activate=False
        )
        self._server.socket.close()
        self._server.socket = line
        self._server.server_activate()
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()

    def close(self):
        self._server.shutdown()
        self._thread.join(10.0)
        self._server.server_close()


def _handler(pages, asked):
    missing = Page("Not Found", status=404)

    class Handler(http.server.BaseHTTPRequestHandler):
        timeout = 10

        def do_GET(self):  # The name is the library's.
            asked.append(self.path)
            page = pages.get(self.path, missing)
            page.free.wait(20.0)
            self.send_response(page.status)
            self.send_header("Content-Type", "text/html")
            self.send_header("Content-Length", str(len(page.content) + (1000 if page.cut else 0)))
            self.end_headers()
            self.wfile.write(page.content)
            self.close_connection = True

        def log_message(self, *_):
            pass

    return Handler
