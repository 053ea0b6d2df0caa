#!/usr/bin/env python3
"""Runs a tool that validates a file: a failure, or with --silent any remark, fails the test."""

import subprocess
import sys

import tools


def main():
    command = sys.argv[1:]
    silent = command[0] == "--silent"
    if silent:
        command.pop(0)
    tools.need(command[0])
    answer = subprocess.run(command, check=False, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    print(answer.stdout, end="")
    sys.exit(1 if answer.returncode != 0 or (silent and answer.stdout) else 0)


if __name__ == "__main__":
    main()
