"""Breaks long lists in the files that scripts write, by a simpler rule than a formatter's."""

WIDTH = 100


def wrapped(head, items, tail, indent):
    """head + items + tail, with commas between the items. Lines are broken before an item that does
    not fit, and begin with `indent`."""
    line, lines = head, []
    for item in [f"{item}, " for item in items[:-1]] + [items[-1] + tail]:
        if len(line + item.rstrip()) > WIDTH:
            lines.append(line.rstrip())
            line = indent
        line += item
    return "\n".join([*lines, line])
