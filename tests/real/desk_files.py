"""The files of the quick buttons and of the groups, byte for byte."""

BUTTONS = [
    ("Call on 1", "You have a call on line 1", 0),
    ("Call on 2", "You have a call on line 2", 0),
    ("Spouse Calling", "Your spouse is on the phone", 1),
    ("Busy?", "Are you busy?", 1),
    ("See me", "Please come see me", 0),
    ("Lunch?", "What would you like for lunch?", 0),
    ("Ready?", "Are you ready?", 0),
    ("Meeting Starting", "The meeting is starting now.", 0),
    ("X is here", "? is here to see you.", 0),
    ("Call Holding", "You have a call holding", 1),
    ("", "", 0),
    ("", "", 0),
    ("OK", "OK", 1),
    ("Take message", "Please take a message", 0),
    ("Get number", "Get a phone number", 0),
    ("Will call back", "Tell them I will call back", 1),
    ("At my desk", "I'm at my desk", 1),
    ("On a call", "I'm on a call", 1),
    ("Yes", "Yes", 1),
    ("No", "No", 1),
    ("Thanks", "Thank you", 1),
    ("", "", 0),
    ("", "", 0),
    ("", "", 0),
]

DEFAULT_GROUPS = ["ACCOUNTING", "FRIENDS", "SALES"]


def _lines(rows):
    return "".join(row + "\r\n" for row in rows).encode("cp1252")


def default_buttons():
    """The bytes that a first start writes: all fields in quotes, and an empty line at the end."""
    return _lines([*(f'"{name}","{text}","{flag}"' for name, text, flag in BUTTONS), ""])


def saved_buttons(changes=None):
    """The bytes that Save writes; the changed rows by their numbers, 1 to 24."""
    rows = dict(enumerate(BUTTONS, 1))
    rows.update(changes or {})
    return _lines(f'"{name}","{text}",{flag}' for name, text, flag in rows.values())


def saved_groups(names, members=None):
    """The bytes that Save writes: ten names, then the addresses of each slot, 1 to 10."""
    slots = range(1, 11)
    rows = [f"[Group{slot:02}name  ]={dict(enumerate(names, 1)).get(slot, '')}" for slot in slots]
    for slot in slots:
        rows += [f"[Group{slot:02}member]={who}" for who in (members or {}).get(slot, [])]
    return _lines(rows)


def default_groups():
    """The bytes that a first start writes, with an empty line at the end."""
    return saved_groups(DEFAULT_GROUPS) + b"\r\n"
