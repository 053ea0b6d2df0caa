"""What a failure at the desk leaves behind for people to look at."""

import pathlib
import subprocess

PATIENCE = 20  # seconds that any one tool may take


def leave(desk, folder):
    """Puts a picture of the screen, the windows, the program's output and the stacks of its threads into a
    folder of their own. A part that can't be had holds the reason: it must not hide what failed first."""
    folder.mkdir(parents=True, exist_ok=True)
    # The stacks come first: they are the most fleeting, and the display may be what hangs.
    for name, part in (("stacks.txt", _stacks), ("output.txt", _output), ("windows.txt", _windows),
                       ("screen.png", _picture)):
        try:
            part(desk, folder / name)
        except Exception as error:  # pylint: disable=broad-except
            (folder / name).with_suffix(".missing.txt").write_text(f"{error!r}\n")


def windows(folder):
    """The windows of the evidence in a folder, for a log that outlives the folder."""
    listed = folder / "windows.txt"
    return listed.read_text(encoding="utf-8") if listed.exists() else ""


def _picture(desk, path):
    desk.screen().save(path)


def _output(desk, path):
    path.write_text(desk.output())


def _windows(desk, path):
    visible = set(desk.find(".", only_visible=True))
    with open(path, "w", encoding="utf-8") as lines:
        for window in desk.find("."):
            state = "visible" if window in visible else "hidden "
            print(f"{window:>10} {state} {desk.window_text(window)}", file=lines)


def _stacks(desk, path):
    with open(path, "w", encoding="utf-8") as lines:
        for process in desk.processes():
            print(f"{process.args[0]}: process {process.pid}, "
                  f"{'running' if process.poll() is None else f'ended with {process.returncode}'}", file=lines)
            for task in sorted(pathlib.Path(f"/proc/{process.pid}/task").glob("*")):
                print(f"  thread {task.name}: {_thread(task)}", file=lines)
        if desk.program is not None and desk.program.poll() is None:
            print(_frames(desk.program.pid), file=lines)


def _thread(task):
    """A thread's name, its state, what it waits for in the kernel, and its system call with arguments."""
    reported = []
    for name in ("comm", "stat", "wchan", "syscall"):
        try:
            text = (task / name).read_text().strip()
            reported.append(text.rpartition(")")[2].split()[0] if name == "stat" else text)
        except OSError as error:  # an ended thread, or one that may not be looked at
            reported.append(error.strerror)
    return " | ".join(reported)


def _frames(pid):
    """The frames of all threads of a process."""
    reported = subprocess.run(["eu-stack", "-p", str(pid)], check=False, capture_output=True, text=True,
                          errors="replace", timeout=PATIENCE)
    return reported.stdout + reported.stderr
