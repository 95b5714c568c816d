"""Which experiments are played, from the cheap to the dear: a name, and what the program is told."""

DAYS = ("first", "usual")
SPREADS = (60, 300, 900, 1800, 3600)  # seconds in which all start
CHECK_HOURS = {50: 4, 100: 4, 200: 2, 500: 0.5}
LOSSES = (0.01, 0.05, 0.2)
SEEDS = {10: 5, 50: 5, 100: 3, 200: 1, 500: 1}
# Seconds after which a morning is left as it is: a working day, and what a machine can be asked for.
LIMITS = {10: 28800, 50: 28800, 100: 28800, 200: 28800, 500: 3600}


def start_name(people, day, spread=60, seed=1, **more):
    extra = "".join(f"-{key}-{value}" for key, value in more.items())
    return f"start-{people}-{day}-{spread}-{seed}{extra}"


def start(people, day, spread=60, seed=1, **more):
    told = {"people": people, "day": day, "over": spread, "seed": seed, "limit": LIMITS[people]}
    return start_name(people, day, spread, seed, **more), ("start", {**told, **more})


def small():
    for people in (10, 50, 100):
        for day in DAYS:
            yield from (start(people, day, seed=seed + 1) for seed in range(SEEDS[people]))
    for people in (2, 5, 10):
        yield f"absence-{people}", ("absence", {"people": people})
    for people in (10, 100, 500):
        yield f"message-{people}", ("message", {"people": people})
    for loss in (0, *LOSSES):
        told = {"people": 50, "messages": 200, "loss": loss}
        yield f"arrivals-{loss}", ("arrivals", told)


def middle():
    for people in (50, 100):
        for day in DAYS:
            yield from (start(people, day, loss=loss) for loss in LOSSES)
            yield from (start(people, day, spread) for spread in SPREADS[1:])
    for order in ("first", "random", "last"):
        yield start(100, "usual", newcomers=10, order=order)
    for people in (50, 100):
        yield start(people, "first", refresh="all")
    for people, hours in CHECK_HOURS.items():
        yield f"check-{people}", ("check", {"people": people, "hours": hours})


def large():
    for people in (200, 500):
        for day in DAYS:
            yield from (start(people, day, seed=seed + 1) for seed in range(SEEDS[people]))
    for day in DAYS:
        yield from (start(200, day, spread) for spread in (900, 3600))


RUNS = {**dict(small()), **dict(middle()), **dict(large())}
