"""The tables: a head and rows, from what was measured."""

import plan

TICK = 0.12  # seconds a row
SIZES = (10, 50, 100, 200, 500)
ADVICE = {
    10: "Nothing.",
    50: "First day: one person chooses *Find Other Users* when it is quiet.",
    100: "Let starts spread over an hour. First day: one *Find Other Users* when it is quiet, or "
    "hand out a common `users.txt`.",
    200: "Better two segments. Else: starts over more than an hour, a common `users.txt`, the "
    "half-hourly check off, and nobody looks for the others in the morning.",
    500: "Too many for one segment: make several, by floor or by department.",
}


def whole(value):
    return f"{value:,.0f}"


def span(seconds):
    if seconds < 120:
        return f"{seconds:.0f} s"
    if seconds < 7200:
        return f"{seconds / 60:.0f} min"
    return f"{seconds / 3600:.1f} h"


def size(count):
    for unit, scale in (("GB", 1e9), ("MB", 1e6), ("KB", 1e3)):
        if count >= scale:
            return f"{count / scale:,.1f} {unit}"
    return f"{count:.0f} B"


def least_to_most(values, show):
    low, high = show(min(values)), show(max(values))
    return low if low == high else f"{low} to {high}"


def runs_of(measured, people, day, **more):
    seeds = range(1, plan.SEEDS[people] + 1)
    return [measured[plan.start_name(people, day, seed=seed, **more)] for seed in seeds]


def when(runs, name, people, done):
    """When something came about; how far it came where it did not."""
    if all(run[name] >= 0 for run in runs):
        return least_to_most([run[name] for run in runs], span)
    if all(run["quiet"] >= 0 for run in runs):
        least = whole(min(run[done] for run in runs))
        return f"not by itself ({least} of {people})"
    return f"not in {span(runs[0]['end'])} ({runs[0][done]:.0f} of {people})"


def emptied(runs):
    if all(run["quiet"] >= 0 for run in runs):
        return least_to_most([run["quiet"] for run in runs], span)
    return f"not in {span(runs[0]['end'])}: {whole(runs[0]['waiting'])} rows wait"


def offices(measured):
    head = ("desks", "all on all lists, usual day", "queues empty again", "what to do")
    rows = []
    for people in SIZES:
        usual = runs_of(measured, people, "usual")
        lists = when(usual, "lists", people, "complete_lists")
        rows.append((str(people), lists, emptied(usual), ADVICE[people]))
    return head, rows


def starts(measured):
    head = ("programs", "day", "all on all lists", "all in every `users.txt`", "longest queue")
    rows = []
    for day in plan.DAYS:
        for people in SIZES:
            runs = runs_of(measured, people, day)
            written = when(runs, "directories", people, "complete_directories")
            rows.append(
                (
                    str(people),
                    day,
                    when(runs, "lists", people, "complete_lists"),
                    "from the start" if day == "usual" else written,
                    least_to_most([run["greatest_queue"] for run in runs], whole),
                    emptied(runs),
                    least_to_most([run["datagrams"] for run in runs], whole),
                )
            )
    return (*head, "queues empty", "datagrams"), rows


def spreads(measured):
    head = ("programs", "day", *(f"{spread // 60} min" for spread in plan.SPREADS))
    rows = []
    for people in SIZES[1:]:
        for day in plan.DAYS:
            cells = []
            for spread in plan.SPREADS:
                run = measured[plan.start_name(people, day, spread)]
                rows_waiting = run["greatest_queue"]
                left = people - run["complete_lists"]
                lists = f"; {left:.0f} lists incomplete" if left else ""
                cells.append(f"{whole(rows_waiting)} rows, {span(rows_waiting * TICK)}{lists}")
            rows.append((str(people), day, *cells))
    return head, rows


def refreshes(measured):
    head = ("programs", "complete before", "who looks for the others", "takes", "complete after")
    rows = []
    for people in (50, 100, 200):
        for who, more in (("one person", {}), ("everybody, within a minute", {"refresh": "all"})):
            run = measured[plan.start_name(people, "first", **more)]
            before = f"{run['complete_lists']:.0f} of {people}"
            if run.refreshes:
                last = run.refreshes[-1]
                rows.append((str(people), before, who, span(last.seconds), f"{last.lists:.0f}"))
            else:
                rows.append((str(people), before, who, "not needed", before))
    return head, rows


def orders(measured):
    head = ("the ten newcomers start", "complete lists by themselves", "all in every `users.txt`")
    rows = []
    names = {"first": "first", "random": "among the others", "last": "last"}
    for order, name in names.items():
        runs = runs_of(measured, 100, "usual", newcomers=10, order=order)
        complete = least_to_most([run["complete_lists"] for run in runs], whole)
        directories = when(runs, "directories", 100, "complete_directories")
        refreshed = least_to_most([after_refreshes(run) for run in runs], str)
        row = (name, f"{complete} of 100", directories, emptied(runs))
        rows.append((*row, least_to_most([run["datagrams"] for run in runs], whole), refreshed))
    return (*head, "queues empty", "datagrams", "refreshes, one after the other"), rows


def after_refreshes(run):
    if not run.refreshes:
        return "not needed"
    last = run.refreshes[-1]
    if last.missing == 0:
        return f"complete after {len(run.refreshes)}"
    names = "name" if last.missing == 1 else "names"
    return f"{last.missing:.0f} {names} missing after {len(run.refreshes)}"


def losses(measured):
    head = ("lost", "programs", "day", "all on all lists", "names missing")
    rows = []
    for loss in plan.LOSSES:
        for people in SIZES:
            for day in plan.DAYS:
                run = measured[plan.start_name(people, day, loss=loss)]
                written = when([run], "directories", people, "complete_directories")
                rows.append(
                    (
                        f"{loss:.0%}",
                        str(people),
                        day,
                        when([run], "lists", people, "complete_lists"),
                        f"{run['missing_names']:.0f} of {whole(people * people)}",
                        "from the start" if day == "usual" else written,
                        whole(run["greatest_queue"]),
                        emptied([run]),
                        after_refreshes(run),
                    )
                )
    more = ("all in every `users.txt`", "longest queue", "queues empty")
    return (*head, *more, "refreshes, one after the other"), rows


def arrivals(measured):
    head = ("lost", "messages to one that arrive", "copies of messages to all that arrive")
    rows = []
    for loss in (0, *plan.LOSSES):
        run = measured[f"arrivals-{loss}"]
        messages, readers = run["messages"], run["readers"]
        rows.append(
            (
                f"{loss:.0%}",
                f"{run['to_one']:.0f} of {messages:.0f}",
                f"{whole(run['to_all'])} of {whole(messages * readers)}",
                f"{run['to_all_and_heard_by_all']:.0f} of {messages:.0f}",
            )
        )
    return (*head, "messages to all that everybody got"), rows


def messages(measured):
    head = ("message", "programs", "datagrams", "bytes on the wire", "deliveries", "windows")
    rows = []
    for index in range(len(measured["message-100"].costs)):
        for people in (10, 100, 200):
            cost = measured[f"message-{people}"].costs[index]
            rows.append(
                (
                    cost.kind if people == 10 else "",
                    str(people),
                    whole(cost.datagrams),
                    size(cost.wire),
                    whole(cost.deliveries),
                    whole(cost.shown),
                    f"{cost.seconds:.2f} s",
                )
            )
    return (*head, "until all is read"), rows


def absences(measured):
    head = ("programs", "datagrams", "bytes on the wire", "longest datagram", "ends")
    rows = []
    for people in (2, 5, 10):
        run = measured[f"absence-{people}"]
        ends = f"after {span(run['ended'])}" if run["ended"] >= 0 else "not in 8 h"
        row = (str(people), whole(run["datagrams"]), size(run["wire_bytes"]))
        rows.append((*row, f"{whole(run['longest'])} bytes", ends))
    return head, rows


def checks(measured):
    head = ("programs", "datagrams an hour", "rounds a program and hour", "queue not empty")
    rows = []
    for people in (50, 100, 200, 500):
        run = measured[f"check-{people}"]
        rows.append(
            (
                str(people),
                whole(run["datagrams_an_hour"]),
                f"{run['rounds_a_program_and_hour']:.2f}",
                f"{run['busy_share']:.0%} of the time",
                f"{run['complete_share']:.1%}",
                whole(run["greatest_queue"]),
            )
        )
    return (*head, "lists complete, mean", "longest queue"), rows
