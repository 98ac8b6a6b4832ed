"""Two copies of the program at work on one file. In the end it is whole, all that was done without a message is there,
and a message came only where the other copy kept the file busy for longer than the engine waits."""

import time

from Mirror import Finding, Mirror
from Work import Main, Trial, Worker

LEAST_MILLISECONDS = 950  # the engine waits for a second in steps, and gives up before the step that would be too long


def CheckMessages(operations, figures):
    for operation in operations:
        for message in operation["messages"]:
            figures["messages that the file was busy"] += 1
            if not message["message"].endswith("database is locked") or message["milliseconds"] < LEAST_MILLISECONDS:
                raise Finding(f"a message: {message} in {operation}")


class TwoAtOnce(Trial):
    def Run(self):
        end = time.monotonic() + self.options.minutes * 60
        while time.monotonic() < end:
            if self.figures["rounds"] % 10 == 0:
                home = self.NewHome().GivenLibrary()
            mirror = Mirror(home.library)
            workers = [Worker(home, self.random.randrange(1 << 30), self.options.operations, place, 2)
                       for place in range(2)]
            told = [operation for worker in workers for operation in worker.End().operations]
            CheckMessages(told, self.figures)
            mirror.CheckByName(home.library, told)
            self.figures["operations"] += len(told)
            self.figures["rounds"] += 1


Main(__doc__, TwoAtOnce, minutes=10.0, operations=150)
