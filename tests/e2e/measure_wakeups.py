"""What wakes the program while nothing happens: in the tray, and with the main window open.

usage: measure_wakeups.py [SECONDS]     of rest for each, 600 by default

strace shows each call that a thread slept in and why it returned. Two timers are known: the poll of
the system's database every 30 seconds and the count to it each second, which diagnostics show. Exits
with 1 when anything else woke a thread, or these more often than they should.
"""

import collections
import pathlib
import re
import subprocess
import sys
import time

from desktop import Bus, NotificationDaemon
from session import Daemon, lone_session, wait_until

# In these a thread sleeps.
WAITS = ["poll", "ppoll", "epoll_wait", "epoll_pwait", "select", "pselect6", "futex", "nanosleep",
         "clock_nanosleep", "restart_syscall", "read", "recvmsg"]
CALL = re.compile(r"^(\d+) +(?:<\.\.\. (\w+) resumed>|(\w+)\()(.*)$")
READY = re.compile(r"fd=\d+<([^>]*)>, revents=")

SETTLING = 20  # seconds after the start, or after a window was opened


def wakeups(lines):
    """Pairs of a thread and a cause, one for each return from a sleep."""
    for line in lines:
        match = CALL.match(line)
        if not match or line.endswith(("<unfinished ...>", "<detached ...>")):
            continue
        thread, name, rest = int(match[1]), match[2] or match[3], match[4]
        if name not in WAITS or "EAGAIN" in rest:
            continue
        duration = re.search(r"<([\d.]+)>$", rest)
        if duration and float(duration[1]) < 0.001:  # it didn't sleep
            continue
        if "(Timeout)" in rest or name.endswith("nanosleep") or name == "restart_syscall":
            yield thread, "timer"
        else:
            yield thread, ", ".join(READY.findall(rest)) or name


def rest(program, seconds, output):
    """Counted by thread and cause."""
    tracing = subprocess.Popen(["strace", "-f", "-y", "-T", "-e", f"trace={','.join(WAITS)}",
                                "-p", str(program.pid), "-o", output], stderr=subprocess.DEVNULL)
    time.sleep(seconds)
    tracing.terminate()
    tracing.wait()
    lines = pathlib.Path(output).read_text(errors="replace").splitlines()
    return collections.Counter(wakeups(lines))


def thread_name(program, thread):
    path = pathlib.Path(f"/proc/{program.pid}/task/{thread}/comm")
    name = path.read_text().strip() if path.exists() else "one that ended"
    return "main" if thread == program.pid else name


def unexplained(program, counted, seconds):
    """What the two timers don't account for. Attaching wakes each thread once."""
    known = seconds * (1 + 2 / 30) + 5
    for (thread, cause), count in counted.items():
        if cause == "timer" and (count <= 1 or thread == program.pid and count <= known):
            continue
        yield f"{thread_name(program, thread)}: {cause}, {count} times"


def report(title, program, seconds, output):
    counted = rest(program, seconds, output)
    print(f"{title}, {seconds:.0f} s:")
    for (thread, cause), count in counted.most_common():
        print(f"  {thread_name(program, thread):24} {cause:40} {count:6}"
              f" {count * 60 / seconds:8.1f} a minute")
    problems = list(unexplained(program, counted, seconds))
    for problem in problems:
        print(f"  not explained: {problem}")
    sys.stdout.flush()
    return problems


def measure(session, seconds):
    bus = Bus(session)
    NotificationDaemon(session, bus, "plain")
    Daemon(session).append("a row")
    program = session.start_program()
    wait_until(lambda: session.count() == 1, "the row")
    output = str(session.root / "strace")
    time.sleep(SETTLING)
    problems = report("In the tray", program, seconds, output)
    session.open_main_window()
    time.sleep(SETTLING)
    return problems + report("With the main window", program, seconds, output)


def main(seconds):
    with lone_session() as session:
        problems = measure(session, seconds)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(float(sys.argv[1]) if len(sys.argv) > 1 else 600))
