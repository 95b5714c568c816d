"""Which experiments are played, from the cheap to the dear: a name, and what the program is told."""

DAYS = ("first", "usual")
SPREADS = (60, 300, 900, 1800, 3600)  # seconds in which all start
CHECK_HOURS = 4
LOSSES = (0.01, 0.05, 0.2)
SEEDS = {10: 5, 50: 5, 100: 3, 200: 3, 500: 1}
# Up to so many people the complete programs play, and the model after them, to the same lines.
MOST_PROGRAMS = {"start": 100, "check": 50}


def start_name(people, day, spread=60, seed=1, **more):
    extra = "".join(f"-{key}-{value}" for key, value in more.items())
    return f"start-{people}-{day}-{spread}-{seed}{extra}"


def start(people, day, spread=60, seed=1, **more):
    told = {"people": people, "day": day, "over": spread, "seed": seed}
    return start_name(people, day, spread, seed, **more), ("start", {**told, **more})


def small():
    for people in (10, 50, 100):
        for day in DAYS:
            yield from (start(people, day, seed=seed + 1) for seed in range(SEEDS[people]))
    for people in (2, 5, 10):
        yield f"absence-{people}", ("absence", {"people": people})
    for people in (10, 100, 200):
        yield f"message-{people}", ("message", {"people": people})
    for loss in (0, *LOSSES):
        told = {"people": 50, "messages": 200, "loss": loss}
        yield f"arrivals-{loss}", ("arrivals", told)


def middle():
    for people in (50, 100):
        for day in DAYS:
            yield from (start(people, day, spread) for spread in SPREADS[1:])
    for people in SEEDS:
        for day in DAYS:
            yield from (start(people, day, loss=loss) for loss in LOSSES)
    for order in ("first", "random", "last"):
        for seed in range(SEEDS[100]):
            yield start(100, "usual", seed=seed + 1, newcomers=10, order=order)
    for people in (50, 100):
        yield start(people, "first", refresh="all")
    for people in (50, 100, 200, 500):
        yield f"check-{people}", ("check", {"people": people, "hours": CHECK_HOURS})


def large():
    for people in (200, 500):
        for day in DAYS:
            yield from (start(people, day, seed=seed + 1) for seed in range(SEEDS[people]))
            yield from (start(people, day, spread) for spread in SPREADS[1:])
    yield start(200, "first", refresh="all")


def modelled(experiment):
    scenario, told = experiment
    return scenario, {**told, "play": "model"}


def by_programs(experiment):
    """Whether the complete programs play it."""
    scenario, told = experiment
    return scenario not in MOST_PROGRAMS or told["people"] <= MOST_PROGRAMS[scenario]


RUNS = {**dict(small()), **dict(middle()), **dict(large())}
