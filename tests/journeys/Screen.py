"""What the program shows, read as a screen reader reads it."""


class Screen:
    """All that one process shows. The bus must be up before the first one is made."""

    def __init__(self, process):
        import pyatspi  # connects to the bus of the environment, which is not there when this file is read
        self.atspi = pyatspi
        self.process = process

    def Application(self):
        for application in self.atspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.process:
                return application
        raise LookupError("the program is not on the accessibility bus")

    def All(self, root=None):
        """Every element, parents first."""
        for child in root or self.Application():
            if child is None:
                continue
            yield child
            # The cells of a list are read through its table: there may be thousands.
            if child.getRole() != self.atspi.ROLE_TABLE:
                yield from self.All(child)

    def Find(self, name, role=None, anywhere=False):
        """What shows under this name, or with `anywhere` also what does not, like the items of a closed menu."""
        for element in self.All():
            if (element.name == name and role in (None, element.getRole())
                    and (anywhere or Has(element, self.atspi.STATE_SHOWING))):
                return element
        raise LookupError(f"nothing is called {name!r}")

    def FocusedName(self):
        return next((element.name for element in self.All() if Has(element, self.atspi.STATE_FOCUSED)), None)

    def Message(self):
        """The title and the words of the message box."""
        box = next(element for element in self.All() if element.getRole() == self.atspi.ROLE_ALERT)
        return box.name, [child.name for child in box if child.getRole() == self.atspi.ROLE_LABEL and child.name]


def Has(element, state):
    return element.getState().contains(state)


def PlaceOf(element):
    """Left, top, width and height on the screen."""
    extents = element.queryComponent().getExtents(0)
    return extents.x, extents.y, extents.width, extents.height


class List:
    """A list of the program: a table for the bus."""

    def __init__(self, element):
        self.table = element.queryTable()

    def Count(self):
        return self.table.nRows

    def Headings(self):
        return [self.table.getColumnDescription(column) for column in range(self.table.nColumns)]

    def Cell(self, row, column):
        return self.table.getAccessibleAt(row, column)

    def Row(self, row):
        return [self.Cell(row, column).name for column in range(self.table.nColumns)]
