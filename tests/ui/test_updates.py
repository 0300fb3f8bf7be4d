#!/usr/bin/python3
# SPDX-FileCopyrightText: The Varlo developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Asks for updates in a window that was built with a feed on loopback.

usage: test_updates.py WINDOW VARLO FAKE_SERVER DRAG_SOURCE [unittest argument...]
"""
import base64
import http.server
import pathlib
import subprocess
import tempfile
import threading

from window_driver import PATIENCE, WindowTest, is_available, main, until

PORT = 47815  # as the build names it
# An Ed25519 key in DER (RFC 8410) made of a seed, whose public half the build names.
KEY = bytes.fromhex("302e020100300506032b657004220420") + bytes([7] * 32)
PAGE = "https://example.org/varlo/new"


def signed(version):
    content = f'{{"version": "{version}", "page": "{PAGE}"}}'.encode()
    with tempfile.TemporaryDirectory() as folder:
        key, text = pathlib.Path(folder) / "key", pathlib.Path(folder) / "text"
        key.write_bytes(KEY)
        text.write_bytes(content)
        signature = subprocess.run(["openssl", "pkeyutl", "-sign", "-rawin", "-keyform", "DER", "-inkey", key, "-in", text],
                                   check=True, capture_output=True).stdout
    return base64.b64encode(signature) + b"\n" + content


class UpdatesTest(WindowTest):
    def serve_feed(self):
        self.answer = b""
        self.may_answer = threading.Event()
        test = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                test.may_answer.wait(PATIENCE)
                self.send_response(200)
                self.send_header("Content-Length", str(len(test.answer)))
                self.end_headers()
                self.wfile.write(test.answer)

            def log_message(self, *_):
                pass

        def bind():
            try:
                return http.server.ThreadingHTTPServer(("127.0.0.1", PORT), Handler)
            except OSError:  # another test has it
                return None
        server = until(bind, f"port {PORT}")
        thread = threading.Thread(target=server.serve_forever)
        thread.start()
        self.addCleanup(lambda: (self.may_answer.set(), server.shutdown(), thread.join(), server.server_close()))

    def check_for_updates(self):
        self.keys("F10")
        entry = self.find("Check for Updates…", "menu item")
        self.assertTrue(is_available(entry))
        self.press_node(entry)

    def test_updates_are_told(self):
        self.serve_feed()
        opened = self.start_with_opener()
        self.focus()
        for answer, title in ((signed("999.1"), "Varlo 999.1 is available."), (signed("0.0.1"), "Varlo is up to date."),
                              (signed("999.1").replace(b"999.1", b"999.2"), "Updates could not be checked."),
                              (b"", "Updates could not be checked.")):
            with self.subTest(title):
                self.answer = answer
                self.may_answer.clear()
                self.check_for_updates()
                self.find("Checking for updates…", "dialog")
                self.check_names()
                self.assertEqual(self.nodes("Open Page", "push button"), [])
                self.may_answer.set()
                self.find(title, "dialog")
                self.assertEqual(bool(self.nodes("Open Page", "push button")), "available" in title)
                self.press("Open Page" if "available" in title else "Close")
                self.wait_for_none(title, "dialog")
        until(lambda: opened.read_text().splitlines() == [PAGE], "the page, once")

    def test_a_check_that_is_not_waited_for_says_no_more(self):
        self.serve_feed()
        self.start()
        self.focus()
        self.check_for_updates()
        self.find("Checking for updates…", "dialog")
        self.keys("Escape")
        self.wait_for_none("Checking for updates…", "dialog")
        self.keys("F10")  # one check at a time
        self.assertFalse(is_available(self.find("Check for Updates…", "menu item")))
        self.keys("Escape")
        self.answer = signed("0.0.1")
        self.may_answer.set()
        self.keys("F10")
        until(lambda: is_available(self.find("Check for Updates…", "menu item")), "the next check")
        self.assertEqual(self.nodes("Varlo is up to date.", "dialog"), [])


if __name__ == "__main__":
    main()
