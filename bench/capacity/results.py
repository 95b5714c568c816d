"""What an experiment has written: points in time, single values, costs."""

import collections
import dataclasses

Point = collections.namedtuple("Point", "seconds median worst lists directories")
Refresh = collections.namedtuple("Refresh", "number seconds lists missing")
Cost = collections.namedtuple("Cost", "kind datagrams bytes wire deliveries shown seconds")
Flow = collections.namedtuple("Flow", "minute datagrams wire longest")


@dataclasses.dataclass
class Result:
    """One experiment's lines, by their kind."""

    points: list
    values: dict
    refreshes: list
    costs: list
    flows: list

    def __getitem__(self, name):
        return self.values[name]

    def at(self, seconds):
        """The last point at or before that time."""
        return [point for point in self.points if point.seconds <= seconds][-1]


def read(path):
    result = Result([], {}, [], [], [])
    for line in path.read_text(encoding="utf-8").splitlines():
        kind, *fields = line.split(",")
        if kind == "value":
            result.values[fields[0]] = float(fields[1])
        elif kind == "point":
            result.points.append(Point(*map(float, fields)))
        elif kind == "refresh":
            result.refreshes.append(Refresh(fields[0], *map(float, fields[1:])))
        elif kind == "cost":
            result.costs.append(Cost(fields[0], *map(float, fields[1:])))
        elif kind == "flow":
            result.flows.append(Flow(*map(float, fields)))
        else:
            raise ValueError(f"{path}: a line of no kind: {line}")
    return result
