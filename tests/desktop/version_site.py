"""A web server of the tests' own for the version file, which does what it is told."""

import queue
import socketserver
import threading

VERSION_FILE = "/prg/Xojo/Tessarolyne_V.txt"


def page(text):
    """An answer with this text as its page."""
    content = text.encode()
    return b"HTTP/1.1 200 OK\r\nContent-Length: %d\r\n\r\n%b" % (len(content), content)


class Site:
    """Answers requests, one at a time, once `answer` has been called for them, and hangs up."""

    def __init__(self):
        self.answer = (answers := queue.SimpleQueue()).put

        class Handler(socketserver.StreamRequestHandler):
            def handle(self):
                while self.rfile.readline().strip():
                    pass
                self.wfile.write(answers.get())

        self._server = socketserver.TCPServer(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self._server.server_address[1]}"
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def end(self):
        self.answer(b"")  # to whom it still keeps waiting
        self._server.shutdown()
        self._server.server_close()
