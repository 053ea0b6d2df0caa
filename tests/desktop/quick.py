"""A desk at which thousands of events take seconds: no tool and no rest lies between them."""

import time

from desk import Desk
from hands import Hands

PROCESSOR_CLOCK = 2  # of a process: the time that it has run on any processor


class QuickDesk(Desk):
    """A desk without a window manager but its hands."""

    def __init__(self, size="1100x800"):
        self.hands = None
        super().__init__(size, managed=False)
        self.hands = Hands(self.display)
        self.hands.lives = lambda: self.program is None or self.program.poll() is None

    def close(self):
        if self.hands is not None:
            self.hands.close()  # before the display ends, which its library does not survive
            self.hands = None
        super().close()

    def start(self, program, *arguments, **environment):
        """Starts the program and waits until its window has the keys."""
        self.launch(program, *arguments, **environment)
        self.window = self.hands.wait_for_window("Hullwright")
        self.answered()

    def answered(self):
        """Waits until the program has dealt with all that was sent, answers, and has no more to do. The windows that
        it opened for it are shown then, those that it closed have gone, and the last one has the keys. Where it
        ends instead, waits for that."""
        self.hands.answered(self.window)
        self.sleep()
        while self.hands.manage():
            self.sleep()
        if not self.hands.shows(self.window):
            self.hands.answered(self.window)

    def processor_time(self):
        """Seconds that the program has run on any processor so far."""
        return time.clock_gettime((~self.program.pid << 3) | PROCESSOR_CLOCK)
