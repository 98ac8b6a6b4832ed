"""Prints the accessibility tree of each window. Ends with a failure when a control has no name."""

import sys

import Desktop
import Windows
from Tree import Tree

with Desktop.Desktop() as desktop:
    pourbook, _ = Windows.Start(desktop)
    tree = Tree(pourbook.screen)
    for title, window in Windows.Walk(pourbook):
        print(f"\n{title}\n" + "\n".join(tree.Lines([window], 1)))
    print(f"\n{tree.unnamed} controls without a name")
    pourbook.Close()
sys.exit(tree.unnamed > 0)
