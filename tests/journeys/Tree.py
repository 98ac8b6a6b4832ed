"""The accessibility tree of the program in words, and what a screen reader would miss in it."""

from Screen import Has, List


class Tree:
    NO_NAME = "<-- HAS NO NAME"

    def __init__(self, screen):
        self.screen = screen
        atspi = screen.atspi
        self.states = {"focusable": atspi.STATE_FOCUSABLE, "focused": atspi.STATE_FOCUSED,
                       "editable": atspi.STATE_EDITABLE, "checked": atspi.STATE_CHECKED,
                       "selected": atspi.STATE_SELECTED}
        # What a person works with or is told something by, whether the keyboard reaches it or not.
        self.controls = {atspi.ROLE_PUSH_BUTTON, atspi.ROLE_CHECK_BOX, atspi.ROLE_RADIO_BUTTON, atspi.ROLE_TEXT,
                         atspi.ROLE_COMBO_BOX, atspi.ROLE_LIST, atspi.ROLE_TABLE, atspi.ROLE_PAGE_TAB,
                         atspi.ROLE_PAGE_TAB_LIST, atspi.ROLE_LABEL, atspi.ROLE_LINK, atspi.ROLE_IMAGE,
                         atspi.ROLE_SCROLL_BAR, atspi.ROLE_PROGRESS_BAR, atspi.ROLE_GROUPING, atspi.ROLE_FRAME,
                         atspi.ROLE_ALERT, atspi.ROLE_MENU_BAR, atspi.ROLE_MENU_ITEM}

    def Lines(self, root, depth=0):
        """One line for each element that shows, indented below its parent."""
        for element in root:
            # A menu's items are told although it is closed: they are how the menu is read before it opens.
            if element is None or not (self.IsShown(element) or self.IsInMenu(root)):
                continue
            yield "  " * depth + self.Words(element)
            if element.getRole() == self.screen.atspi.ROLE_TABLE:
                yield from ("  " * (depth + 1) + line for line in self.TableLines(element))
            else:
                yield from self.Lines(element, depth + 1)

    def Words(self, element):
        states = [word for word, state in self.states.items() if Has(element, state)]
        words = [element.getRoleName(), repr(element.name), *states]
        if self.IsUnnamed(element):
            words.append(self.NO_NAME)
        return " ".join(words)

    def TableLines(self, element):
        """The headings and the first rows. The cells of a row may take their name from it, but each must have one."""
        table = List(element)
        headings = [heading for heading in table.Headings() if heading.strip()]
        yield f"{table.Count()} rows" + (", columns " + ", ".join(headings) if headings else "")
        for row in range(min(table.Count(), 3)):
            cells = [table.Cell(row, column) for column in range(table.table.nColumns)]
            yield "row " + " | ".join(self.Words(cell) for cell in cells)

    def IsShown(self, element):
        return Has(element, self.screen.atspi.STATE_SHOWING)

    def IsInMenu(self, element):
        return element.getRole() in (self.screen.atspi.ROLE_POPUP_MENU, self.screen.atspi.ROLE_MENU_ITEM)

    def IsUnnamed(self, element):
        if element.name.strip():
            return False
        if element.getRole() in (self.screen.atspi.ROLE_TABLE_CELL, self.screen.atspi.ROLE_LIST_ITEM):
            return Has(element, self.screen.atspi.STATE_CHECKABLE)
        return element.getRole() in self.controls or Has(element, self.screen.atspi.STATE_FOCUSABLE)
