#!/usr/bin/env python3
"""Tests of the rules by which sources are broken, and that the list of equivalent breaks names breaks that exist."""

import itertools
import pathlib
import sys
import unittest

import breaks

PROJECT = pathlib.Path(__file__).resolve().parents[2]


def after(rule, line):
    """What a rule makes of a line of a source."""
    return [found.after for found in breaks.breaks_of("src/room/File.cpp", line) if found.rule == rule]


class Rules(unittest.TestCase):
    def test_a_comparison_is_turned(self):
        self.assertEqual(after("comparison turned", "  if (a < b) return;"), ["  if (a >= b) return;"])
        self.assertEqual(after("comparison turned", "  x = a == b ? c : d;"), ["  x = a != b ? c : d;"])

    def test_template_arguments_are_no_comparison(self):
        self.assertEqual(after("comparison turned", "  std::vector<int> v;"), [])

    def test_a_boundary_is_moved_to_either_side(self):
        self.assertEqual(after("boundary moved", "  return i <= 3;"),
                         ["  return i < 3;", "  return i <= 4;", "  return i <= 2;"])
        self.assertEqual(after("boundary moved", "  mode = 0666;"), ["  mode = 439;", "  mode = 437;"])

    def test_a_sign_is_turned(self):
        self.assertEqual(after("sign turned", "  x = a + b;"), ["  x = a - b;"])
        self.assertEqual(after("sign turned", "  x = f(-1, y);"), ["  x = f(1, y);"])
        self.assertEqual(after("sign turned", "  ++n;"), ["  --n;"])

    def test_a_fraction_changes(self):
        self.assertEqual(after("constant changed", "  return 0.5;"), ["  return 2.0;"])
        self.assertEqual(after("constant changed", "  return 0.0;"), ["  return 1.0;"])

    def test_a_condition_is_negated(self):
        self.assertEqual(after("logic turned", "  if (IsOpen()) return;"), ["  if (!(IsOpen())) return;"])
        self.assertEqual(after("logic turned", "  a = b && true;"), ["  a = b || true;", "  a = b && false;"])

    def test_a_condition_that_declares_is_left_alone(self):
        self.assertEqual(after("logic turned", "  if (const int* a = Find()) return;"), [])

    def test_a_cast_is_dropped_where_it_is_an_operand(self):
        self.assertEqual(after("cast dropped", "  a = static_cast<int>(b(c)) / 2;"), ["  a = (b(c)) / 2;"])
        self.assertEqual(after("cast dropped", "  a = 2 * static_cast<int>(b);"), ["  a = 2 * (b);"])
        self.assertEqual(after("cast dropped", "  const auto a = static_cast<int>(b);"), ["  const auto a = (b);"])
        self.assertEqual(after("cast dropped", "  a = static_cast<int>(b);"), [])
        self.assertEqual(after("cast dropped", "  F(static_cast<int>(b), c);"), [])

    def test_a_statement_is_left_out(self):
        self.assertEqual(after("statement left out", "  view.Repaint();"), ["  ;"])
        self.assertEqual(after("assignment left out", "  right = left;"), ["  ;"])
        self.assertEqual(after("jump left out", "    if (a) continue;"), ["    if (a) ;"])

    def test_declarations_and_returns_stay(self):
        for line in ("  int a = 3;", "  return Call();", "  const auto& b = Call();", "  virtual void F(int a) = 0;"):
            self.assertEqual(after("statement left out", line) + after("assignment left out", line), [], line)

    def test_the_end_of_a_statement_is_not_left_out_alone(self):
        self.assertEqual(after("statement left out", "      first, Second());"), [])

    def test_two_statements_are_swapped(self):
        self.assertEqual(after("order swapped", "  First();\n  Second();"), ["  Second();\n  First();"])

    def test_the_name_of_a_break_is_one_line(self):
        names = [found.identity for found in breaks.breaks_of("src/room/File.cpp", "  a.Set(b);\n  b.Clear();")]
        self.assertIn("src/room/File.cpp\torder swapped\ta.Set(b); b.Clear();\tb.Clear(); a.Set(b);", names)
        self.assertIn("src/room/File.cpp\tstatement left out\tb.Clear();\t;", names)

    def test_statements_without_a_common_name_are_not_swapped(self):
        def is_swapped(*lines):
            return after("order swapped", "\n".join(lines)) != []
        self.assertFalse(is_swapped("  right = left + w;", "  top = bottom + w;"))
        self.assertFalse(is_swapped("  a->x = b.Get(1);", "  a->y = b.Get(2);"))
        self.assertTrue(is_swapped("  left = right - w;", "  right = left + w;"))
        self.assertFalse(is_swapped("  count_ += 1;", "  Begin(layer);"))
        self.assertFalse(is_swapped("  std::memcpy(&a, b, sizeof(a));", "  std::memcpy(&c, d, sizeof(c));"))
        self.assertTrue(is_swapped("  json.Key(1);", "  json.Key(2);"))
        self.assertTrue(is_swapped("  a.Set(b);", "  b.Clear();"))

    def test_room_for_one_more_is_no_break(self):
        self.assertEqual(after("boundary moved", "  std::array<char, 16> a;"), ["  std::array<char, 15> a;"])

    def test_the_statement_of_a_condition_is_not_swapped(self):
        self.assertEqual(after("order swapped", "  if (a)\n  First();\n  Second();"), [])

    def test_texts_comments_and_preprocessor_stay(self):
        for line in ('#if A == 3', '  // a < b', '  Call("a == 1", \'<\', /* 3 */ b);', "#define A \\\n  1 < 2"):
            found = [change for change in breaks.breaks_of("src/room/File.cpp", line) if change.rule != "statement left out"]
            self.assertEqual(found, [], line)

    def test_a_break_changes_its_line_alone(self):
        text = "void F()\n{\n  First(1);\n  Second();\n}\n"
        for change in breaks.breaks_of("src/room/File.cpp", text):
            broken = breaks.broken(text, change)
            self.assertEqual(broken.split("\n")[:2] + broken.split("\n")[4:], text.split("\n")[:2] + text.split("\n")[4:])
            self.assertNotEqual(broken, text)


class Sources(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.by_line = breaks.all_breaks(PROJECT)

    def test_every_room_has_breaks(self):
        rooms = {path.name for path in (PROJECT / "src").iterdir() if path.is_dir()}
        self.assertEqual({found[0].room for found in self.by_line.values()}, rooms)

    def test_the_sample_depends_on_the_seed_alone(self):
        first, again, other = (list(itertools.islice(breaks.sample(self.by_line, seed), 200)) for seed in (1, 1, 2))
        self.assertEqual(first, again)
        self.assertNotEqual(first, other)
        self.assertEqual(len({(found.file, found.line) for found in first}), 200)

    def test_the_order_stays_when_another_line_changes(self):
        gone, whole = (list(breaks.sample(by_line, 1)) for by_line in (dict(list(self.by_line.items())[1:]), self.by_line))
        left = {found.identity for found in gone}
        self.assertEqual([found.identity for found in gone][:500], [found.identity for found in whole if found.identity in left][:500])

    def test_every_equivalent_break_exists_and_has_a_reason(self):
        known = {found.identity for line in self.by_line.values() for found in line}
        for line in (PROJECT / "tests/mutation/equivalent.tsv").read_text(encoding="utf-8").splitlines():
            if line and not line.startswith("#"):
                identity, _, reason = line.rpartition("\t")
                self.assertIn(identity, known)
                self.assertGreater(len(reason), 10, line)


if __name__ == "__main__":
    sys.exit(unittest.main())
