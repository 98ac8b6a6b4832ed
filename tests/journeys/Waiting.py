"""Waiting for what a person would wait for, and no longer."""

import time

TIME_LIMIT = 20.0


class TookTooLong(AssertionError):
    pass


def WaitFor(condition, what, limit=TIME_LIMIT):
    """The first true answer of the condition. What the program shows may be half changed meanwhile, so an error of
    the accessibility bus counts as a no."""
    deadline = time.monotonic() + limit
    answer = None
    while time.monotonic() < deadline:
        try:
            answer = condition()
        except Exception as error:  # the bus has many; the last one is told below
            answer = error
        if answer and not isinstance(answer, Exception):
            return answer
        time.sleep(0.02)
    raise TookTooLong(f"waited {limit:g} seconds for {what}; the last answer was {answer!r}")


def WaitUntilEqual(read, expected, what, limit=TIME_LIMIT):
    """Waits until `read` gives what is expected; the failure shows what it gave last."""
    seen = [None]

    def Compare():
        seen[0] = read()
        return seen[0] == expected

    try:
        WaitFor(Compare, what, limit)
    except TookTooLong:
        raise AssertionError(f"{what}: expected {expected!r}, but saw {seen[0]!r}") from None
