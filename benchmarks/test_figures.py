#!/usr/bin/env python3
"""What `figures` makes of the programs' rows and of the table that is kept."""

import sys
import tempfile
import unittest
from importlib.machinery import SourceFileLoader
from pathlib import Path

sys.dont_write_bytecode = True
figures = SourceFileLoader("figures", str(Path(__file__).with_name("figures"))).load_module()


def row(figure, must, aim):
    return {"program": "bench_x", "goal": "1 x", "figure": figure, "must": must, "aim": aim, "control": "1.0"}


class Figures(unittest.TestCase):
    def test_rows_are_read_with_goals_of_any_length(self):
        line = "2 build, show, paint, delete: 1 tab                     1.217     1.03     0.90    0.937  MISSED  7.577e+06  6.447e+06"
        self.assertEqual(figures.ROW.match(line).groups()[:5],
                         ("2 build, show, paint, delete: 1 tab", "1.217", "1.03", "0.90", "0.937"))
        for line in ("goal        figure     must", "1032651 values"):
            self.assertIsNone(figures.ROW.match(line))

    def test_worse_is_more_than_a_tenth_in_the_direction_of_the_goal(self):
        less, more, unjudged = ("1.0", "0.5"), ("8.0", "11.0"), ("0.0", "0.0")
        for figure, before, goal, worse in (("1.09", 1, less, False), ("1.11", 1, less, True), ("0.5", 1, less, False),
                                            ("9.2", 10, more, False), ("9.0", 10, more, True), ("20", 10, more, False),
                                            ("9", 1, unjudged, False), ("9", 0, less, False)):
            self.assertEqual(figures.is_worse(row(figure, *goal), before), worse, (figure, before, goal))

    def test_a_table_is_read_as_it_was_written(self):
        with tempfile.TemporaryDirectory() as directory:
            file = Path(directory, "figures.csv")
            self.assertEqual(figures.read(file), {})
            figures.write(file, [row("1.25", "0", "0")], False)
            self.assertEqual(figures.read(file), {("bench_x", "1 x"): 1.25})


if __name__ == "__main__":
    unittest.main()
