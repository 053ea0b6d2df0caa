#!/usr/bin/env python3
"""Tests of what replay_test.py makes of a script: how lines go on, what names stand for, and what counts as a
difference."""

import json
import pathlib
import tempfile
import unittest

from replay_test import difference, expectations, read_names, whole_lines

NAMES = read_names("command\t32791\tMenu.EditVertex\ncommand\t32791\tTree.EditPoint\ncontrol\t1008\tx\n"
                   "side\t16\tFront\ntype of shape\t2\tPolyline\nunit\t9003\tUS survey foot\n")


def expected(script):
    """What a script of that text expects."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "script"
        path.write_text(script, encoding="utf-8")
        return list(expectations(path, NAMES))


class Lines(unittest.TestCase):
    def test_a_backslash_at_the_end_goes_on_behind_the_blanks_of_the_next_line(self):
        script = '# remark \\\n{"do":\\\n   "new"}\n#= {"file":"a \\\n#    b\\n\\  \n# c"}\n'
        self.assertEqual(list(whole_lines(script)), [(2, '{"do":"new"}'), (4, '#= {"file":"a b\\nc"}')])

    def test_an_expectation_goes_on_in_remarks_alone(self):
        with self.assertRaisesRegex(ValueError, "^2: .* line 1 "):
            list(whole_lines('#= {"file":\\\n"a"}\n'))

    def test_the_last_line_does_not_go_on(self):
        with self.assertRaisesRegex(ValueError, "^1: "):
            list(whole_lines('#= {}\\\n'))


class Expectations(unittest.TestCase):
    def test_they_belong_to_the_step_before_them(self):
        script = '{"open":"a"}\n{"do":"new"}\n#= {"result":true}\n\n{"do":\\\n"save"}\n#= 1\n#= 2\n'
        self.assertEqual(expected(script), [(3, 0, {"result": True}), (7, 1, 1), (8, 1, 2)])

    def test_what_cannot_be_read_is_reported_with_its_line(self):
        with self.assertRaisesRegex(ValueError, "^2: "):
            expected('{"do":"new"}\n#= {"result"}\n')


class Names(unittest.TestCase):
    def test_they_become_numbers_wherever_reports_have_those(self):
        for stated, numbers in (
                ({"menu": [["Tree.EditPoint", "x"], "*"]}, {"menu": [[32791, "x"], "*"]}),
                ({"dialogs": [{"dialog": "x", "fields": {"x": "Front", "7": ""}, "focus": "x"}]},
                 {"dialogs": [{"dialog": "x", "fields": {"1008": "Front", "7": ""}, "focus": 1008}]}),
                ({"state": {"shell": {"viewButton": "Menu.EditVertex", "checks": {"Menu.EditVertex": True}}}},
                 {"state": {"shell": {"viewButton": 32791, "checks": {"32791": True}}}}),
                ({"state": {"design": {"activeView": "Front", "unitCode": "US survey foot", "groups": [
                    {"view": "Front", "shapes": [{"type": "Polyline", "text": "Front"}]}]}}},
                 {"state": {"design": {"activeView": 16, "unitCode": 9003, "groups": [
                     {"view": 16, "shapes": [{"type": 2, "text": "Front"}]}]}}}),
                ({"state": {"design": {"activeView": "*"}}, "result": "Front"},
                 {"state": {"design": {"activeView": "*"}}, "result": "Front"})):
            self.assertEqual(expected("#= " + json.dumps(stated)), [(1, -1, numbers)])

    def test_an_unknown_one_is_told_with_its_line(self):
        with self.assertRaisesRegex(ValueError, '^2: no control is called "y"$'):
            expected('{"do":"new"}\n#= {"dialogs":[{"fields":{"y":"1"}}]}\n')
        with self.assertRaisesRegex(ValueError, '^1: no side is called "front"$'):
            expected('#= {"state":{"design":{"activeView":"front"}}}\n')


class Differences(unittest.TestCase):
    def test_what_is_left_out_is_left_open(self):
        self.assertIsNone(difference({"a": 1, "b": "*"}, {"a": 1 + 1e-12, "b": [3], "c": 4}))

    def test_everything_else_counts(self):
        for stated, found in (({"a": 1}, {}), ([1], [1, 2]), (1, 1.001), (True, 1), ("1", 1), (None, 0)):
            self.assertIsNotNone(difference(stated, found), json.dumps([stated, found]))


if __name__ == "__main__":
    unittest.main()
