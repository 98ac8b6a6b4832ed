"""Two copies of the program at work on one file. In the end it is whole, all that was done without a message is there,
and a message came only where the other copy kept the file busy for longer than the engine waits."""

import time

from Mirror import Finding, Mirror
from Work import Home, Main, Worker

BAR = "SELECT IngredientID, IFNULL(InBar, 0), IFNULL(Empty, 0) FROM Ingredients"
LEAST_MILLISECONDS = 950  # the engine waits for a second in steps, and gives up before the step that would be too long


def CheckMessages(operations, figures):
    for operation in operations:
        for message in operation["messages"]:
            figures["messages that the file was busy"] += 1
            if not message["message"].endswith("database is locked") or message["milliseconds"] < LEAST_MILLISECONDS:
                raise Finding(f"a message: {message} in {operation}")


def CheckBar(home, before, operations):
    """Both fill the bar. What it holds of an ingredient is what the last to begin wrote, or another that ended later
    than that one began. One that was refused may have written or not."""
    changes = [{"time": 0, "done": 0, "messages": [], "begin": "before"}] + [
        operation for operation in operations if operation["begin"] in ("fill bar", "flip bottle")]

    def Written(change, id):
        if change["begin"] == "before":
            return before.get(id, [0, 0])
        if change["begin"] == "fill bar":
            return id in change["ingredients"], False
        return None, change["empty"] if change["ingredient"] == id else None

    for id, *values in (map(int, row.split("|")) for row in home.library.Run(BAR)):
        for column, value in enumerate(values):
            writes = [change for change in changes if Written(change, id)[column] is not None]
            lastBegin = max(write["time"] for write in writes if not write["messages"])
            possible = {Written(write, id)[column] for write in writes if write["done"] >= lastBegin}
            if value not in possible and not any(write["messages"] for write in writes):
                raise Finding(f"column {column} of ingredient {id} is {value}, but was written as {possible}")


def Run(options, random, folder, figures):
    end = time.monotonic() + options.minutes * 60
    while time.monotonic() < end:
        if figures["rounds"] % 10 == 0:
            home = Home(folder / f"home{figures['rounds']}").GivenLibrary()
        mirror = Mirror(home.library)
        bar = {id: values for id, *values in mirror.Rows(BAR)}
        workers = [Worker(home, random.randrange(1 << 30), options.operations, place, 2) for place in range(2)]
        told = [operation for worker in workers for operation in worker.End().operations]
        CheckMessages(told, figures)
        mirror.CheckByName(home.library, told)
        CheckBar(home, bar, told)
        figures["operations"] += len(told)
        figures["rounds"] += 1


Main(__doc__, Run, minutes=10.0, operations=150)
