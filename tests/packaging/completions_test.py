#!/usr/bin/env python3
"""Holds the completions of three shells to what hullwright-cli says of its options."""

import pathlib
import re
import shutil
import subprocess
import sys
import unittest

CLI, FOLDER = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1))
VERBS = ("check", "diff", "export", "import", "info", "render", "report")
SIDES = ["top", "bottom", "right", "left", "front", "rear"]


def usage(*verb):
    """What the program says of a verb, or of itself."""
    return subprocess.run([CLI, *verb, "--help"], check=True, text=True, capture_output=True).stdout


def long_options(verb):
    """The long options of a verb."""
    return set(re.findall(r"^  -\w, (--[\w-]+)", usage(verb), re.MULTILINE)) | {"--help"}


def by_bash(*words):
    """What bash offers for the last of the words."""
    script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); '
              '_hullwright_cli "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD-1]}"; '
              '((${#COMPREPLY[@]})) && printf "%s\\n" "${COMPREPLY[@]}" || true')
    answer = subprocess.run(["bash", "-c", script, "bash", FOLDER / "hullwright-cli.bash", "hullwright-cli", *words],
                            check=True, text=True, capture_output=True).stdout
    return answer.split("\n")[:-1]


def by_fish(line):
    """What fish offers for the last word of a line."""
    answer = subprocess.run(["fish", "--no-config", "-c", f"source {FOLDER}/hullwright-cli.fish; complete -C '{line}'"],
                            check=True, text=True, capture_output=True).stdout
    return [offer.partition("\t")[0] for offer in answer.splitlines()]


class Bash(unittest.TestCase):
    def test_offers_every_verb(self):
        self.assertEqual(set(by_bash("")), {*VERBS, "--help", "--version"})
        self.assertEqual(set(VERBS), set(re.findall(r"^  (\w+)  ", usage(), re.MULTILINE)))

    def test_offers_every_option_of_a_verb_and_no_other(self):
        for verb in VERBS:
            self.assertEqual(set(by_bash(verb, "--")), long_options(verb), verb)

    def test_offers_the_sides_behind_their_option(self):
        self.assertEqual(by_bash("import", "--side", ""), SIDES)
        self.assertEqual(by_bash("import", "-s", "r"), ["right", "rear"])
        self.assertEqual(by_bash("render", "--side", "="), [*SIDES, "all"])
        self.assertEqual(by_bash("render", "--side", "=", "to"), ["top"])
        self.assertEqual(by_bash("render", "--grid", ""), ["on", "off"])
        self.assertEqual(by_bash("export", "--dxf-version", ""), ["R2000", "R12"])
        self.assertEqual(by_bash("export", "--layer-by", "="), ["side", "kind"])
        self.assertEqual(by_bash("diff", "--side", ""), SIDES)

    def test_offers_the_files_that_a_verb_takes(self):
        drawings = FOLDER / "../../samples/dxf/"
        self.assertTrue(all(name.endswith(".dxf") for name in by_bash("import", f"{drawings}/")))
        self.assertTrue(by_bash("import", f"{drawings}/"))
        self.assertFalse(by_bash("check", f"{drawings}/"))
        samples = [name.rpartition("/")[2] for name in by_bash("check", f"{drawings}/../")]
        self.assertIn("workboat.xml", samples)
        self.assertNotIn("draw_samples.py", samples)
        self.assertTrue(by_bash("diff", f"{drawings}/"))
        self.assertFalse(by_bash("report", f"{drawings}/"))


class Fish(unittest.TestCase):
    def test_names_every_option_of_a_verb_and_no_other(self):
        text = (FOLDER / "hullwright-cli.fish").read_text(encoding="utf-8")
        for verb in VERBS:
            named = set(re.findall(rf"__hullwright_cli_verb {verb}' .*-l ([\w-]+)", text))
            self.assertEqual({f"--{name}" for name in named} | {"--help"}, long_options(verb), verb)

    @unittest.skipUnless(shutil.which("fish"), "fish is not installed")
    def test_offers_verbs_sides_and_options(self):
        self.assertEqual(set(by_fish("hullwright-cli ")), set(VERBS))
        self.assertEqual(set(by_fish("hullwright-cli render --side ")), {*SIDES, "all"})
        for verb in VERBS:
            self.assertEqual({offer for offer in by_fish(f"hullwright-cli {verb} --") if offer.startswith("--")},
                             long_options(verb), verb)


class Zsh(unittest.TestCase):
    def test_names_every_option_of_a_verb_and_no_other(self):
        text = (FOLDER / "hullwright-cli.zsh").read_text(encoding="utf-8")
        for verb in VERBS:
            block = re.search(rf"^    {verb}\)\n(.*?);;", text, re.MULTILINE | re.DOTALL)[1]
            named = {short or long for short, long in re.findall(r"\{-\w\+?,(?:(--[\w-]+)|(--[\w-]+)=)", block)}
            self.assertEqual(named, long_options(verb), verb)

    @unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
    def test_zsh_understands_the_file(self):
        subprocess.run(["zsh", "-n", FOLDER / "hullwright-cli.zsh"], check=True)


if __name__ == "__main__":
    unittest.main()
