"""Runs the programs of benchmarks and gathers what they measured."""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from rows import Measurement, WrongResult


def surroundings(home):
    """Variables of a process that shall find nothing of the user's, and no display."""
    folders = {f"XDG_{kind}_HOME": str(pathlib.Path(home, kind.lower())) for kind in ("CONFIG", "DATA", "STATE", "CACHE")}
    return {**os.environ, **folders, "HOME": str(home), "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen"}


def run_program(program, inputs, pattern, smoke, repetitions):
    """All measurements of a program of benchmarks, by name, its repetitions interleaved."""
    with tempfile.TemporaryDirectory() as home:
        out = pathlib.Path(home, "out.json")
        command = [program, inputs, f"--benchmark_filter={pattern}", f"--benchmark_out={out}",
                   "--benchmark_out_format=json", "--benchmark_enable_random_interleaving=true",
                   f"--benchmark_repetitions={repetitions}", f"--benchmark_min_time={0.001 if smoke else 0.05}"]
        done = subprocess.run([str(word) for word in command], env=surroundings(home), capture_output=True, text=True,
                              check=False)
        runs = json.loads(out.read_text(encoding="utf-8"))["benchmarks"] if done.returncode == 0 else []
    if done.returncode != 0:
        raise WrongResult(f"{pathlib.Path(program).name} ended with {done.returncode}:\n{done.stdout}{done.stderr}")
    return gathered(runs)


def gathered(runs):
    """The measurements of the report of a program, in milliseconds."""
    known = {"real_time", "cpu_time", "repetitions", "repetition_index", "threads", "iterations", "family_index",
             "per_family_instance_index"}
    scales = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}
    measured = {}
    for run in runs:
        if run["run_type"] != "iteration":
            continue
        counters = {key: value for key, value in run.items() if key not in known and isinstance(value, (int, float))}
        measurement = measured.setdefault(re.sub("(/iterations:1)?/process_time$", "", run["run_name"]), Measurement([], counters))
        measurement.values.append(run["cpu_time"] * scales[run["time_unit"]])
    return measured


def process_cost(command, environment=None):
    """Milliseconds of CPU and bytes of peak memory of a whole process."""
    with tempfile.TemporaryFile() as said:
        words = [str(word) for word in command]
        actions = [(os.POSIX_SPAWN_DUP2, said.fileno(), 1), (os.POSIX_SPAWN_DUP2, said.fileno(), 2)]
        child = os.posix_spawnp(words[0], words, environment or os.environ, file_actions=actions)
        _, status, used = os.wait4(child, 0)
        if status != 0:
            said.seek(0)
            raise WrongResult(f"{' '.join(words)} failed:\n{said.read().decode(errors='replace')}")
    return 1000.0 * (used.ru_utime + used.ru_stime), used.ru_maxrss * 1024.0  # it counts kilobytes


def note(text):
    """A remark that is no part of the table."""
    print(text, file=sys.stderr, flush=True)
