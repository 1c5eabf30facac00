"""For scripts that start other programs: these end with the script, however it ends, and the script
waits for what it wants to see, with a limit that fails.

    sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
    from processes import expect, script, start, until

    def main():
        server = start(["Xvfb", ...])           # a subprocess.Popen; dies with this script
        until(lambda: ready(server), "the server")
        expect(answer == 42, f"the answer: {answer}")

    if __name__ == "__main__":
        script(main)                            # exit status, time limit, SIGTERM as an exception
"""
import glob
import signal
import subprocess
import sys
import time

LIMIT_S = 270   # below the time limits of ctest, which would leave nothing to tell


class Failed(Exception):
    """Something is not as wanted."""


class Ended(BaseException):
    """The script itself is to end: its time is over, or somebody has ended it."""


def expect(condition, what):
    if not condition:
        raise Failed(what)


def until(condition, what, seconds=30.0):
    """The first true value of a function that is asked again and again."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failed(f"waited {seconds:g} s in vain: {what}")
        time.sleep(0.02)


def start(command, **options):
    """Starts a program that the system kills when the thread that started it is gone: so start
    nothing from a short-lived thread."""
    return subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "--", *map(str, command)], **options)


def end(process):
    """Ends a program that was started here, also one that is stopped or deaf."""
    if process is None or process.poll() is not None:
        return
    process.send_signal(signal.SIGCONT)
    process.terminate()
    try:
        process.wait(3)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def sleeps(process, seconds=2.5):
    """Whether no thread of a process wakes up for a while."""
    def woken():
        total = 0
        for file in glob.glob(f"/proc/{process.pid}/task/*/status"):
            with open(file, encoding="ascii") as lines:
                total += sum(int(line.split()[1]) for line in lines if "ctxt_switches" in line)
        return total
    before = woken()
    time.sleep(seconds)
    return woken() == before


def _ended(number, frame):
    raise Ended("no end in time" if number == signal.SIGALRM else signal.strsignal(number))


def script(main, seconds=LIMIT_S):
    """Runs a script to its exit status: 1 for what main returns or has failed, told in one line."""
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGALRM):
        signal.signal(number, _ended)
    signal.alarm(seconds)
    try:
        sys.exit(main())
    except (Failed, Ended) as failure:
        sys.exit(f"{type(failure).__name__}: {failure}")
