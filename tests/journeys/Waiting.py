"""Waiting for what a person would wait for, and no longer."""

import time


def WaitFor(read, what, isRight=bool):
    """The first answer that is right. What the program shows may be half changed meanwhile, so an error of the
    accessibility bus counts as a wrong one."""
    deadline = time.monotonic() + 20
    while True:
        try:
            answer = read()
            if isRight(answer):
                return answer
        except Exception as error:  # the bus has many
            answer = error
        if time.monotonic() > deadline:
            raise AssertionError(f"waited for {what}, but saw {answer!r}")
        time.sleep(0.02)


def WaitUntilEqual(read, expected, what):
    WaitFor(read, f"{what}: {expected!r}", lambda seen: seen == expected)
