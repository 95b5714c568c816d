"""Writes the tables of docs/capacity.md, each between its markers."""

import re

import tables

TABLES = {
    "offices": tables.offices,
    "starts": tables.starts,
    "spreads": tables.spreads,
    "refreshes": tables.refreshes,
    "orders": tables.orders,
    "losses": tables.losses,
    "arrivals": tables.arrivals,
    "messages": tables.messages,
    "absences": tables.absences,
    "checks": tables.checks,
}


def lines_of(head, rows):
    yield "| " + " | ".join(head) + " |"
    yield "| " + " | ".join(["---"] + ["---:"] * (len(head) - 1)) + " |"
    for row in rows:
        yield "| " + " | ".join(row) + " |"


def filled(text, name, table):
    block = re.compile(rf"(<!-- measured: {name} -->\n).*?(<!-- end -->)", re.S)
    if not block.search(text):
        raise ValueError(f"the page has no place for the table {name}")
    return block.sub(lambda found: found[1] + "\n".join(table) + "\n" + found[2], text)


def write(measured, path):
    text = path.read_text(encoding="utf-8")
    for name, table in TABLES.items():
        text = filled(text, name, lines_of(*table(measured)))
    path.write_text(text, encoding="utf-8")
