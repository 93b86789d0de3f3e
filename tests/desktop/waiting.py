"""Waiting for what the program does in its own time: the one place of the desktop tests that sleeps."""

import time

from gi.repository import GLib

POLL_SECONDS = 0.01


def wait_until(condition, what, seconds=10.0):
    """Returns the first true value of condition(); fails with `what` when it stays false for `seconds`.

    A part of the accessibility tree may vanish while it is read: that counts as "not yet".
    """
    deadline = time.monotonic() + seconds
    last = None
    while True:
        try:
            last = condition()
        except GLib.Error as error:
            last = error.message
        else:
            if last:
                return last
        if time.monotonic() > deadline:
            what = what() if callable(what) else what
            raise AssertionError(f"waited {seconds} s in vain: {what} (at last: {last!r})")
        time.sleep(POLL_SECONDS)
