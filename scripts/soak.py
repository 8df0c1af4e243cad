#!/usr/bin/env python3
"""Uses the program at random for a time, through trv5-console, and looks whether it stands that.

    soak.py BIN [--minutes M | --operations N] [--seed S] [--archivio FILE] [--longest SECONDS] [--trace FILE]

BIN holds trv5-console and trv5-data, best those built with sanitizers (build/sanitize/bin). Operations are drawn from
the seed over all screens and controls that the console tells of; every few hundred the program is started again, in the
same process, on a folder made afresh out of FILE or of the demonstration archive. Ends with 1 at a crash, a sanitizer's
report, an unexpected error, an operation that takes the processor for longer than SECONDS, memory that grows, a leak.
The same seed and number of operations give the same digest of the state; --trace writes what was told and what stood
there at the end of each session, for a diff of two runs. Time is counted by operations: one during which the program
was stopped counts for ten seconds at most. Sanitizers make everything some ten to twenty times as slow: SECONDS are 60
for them. A SIGTERM to this script ends the run early, with its verdict.
"""
import argparse
import collections
import hashlib
import json
import pathlib
import random
import re
import signal
import statistics
import sys
import tempfile
import time

sys.dont_write_bytecode = True  # the sources stay what they are
import soak_world
from soak_user import User
from soak_world import Broken, Console, World

# What the console refuses because the control can't be used that way now; anything else it says is a fault.
REFUSALS = re.compile(r"controllo disabilitato|la schermata non è aperta|la lista .* non ha la voce|la cella non|"
                      r"il controllo non (si può|ha un)|la scheda .* è disabilitata|il programma è terminato|"
                      r"l'immagine non può|non è una griglia|dev'essere 0 o 1|.* non ha la scheda")
FOREIGN = re.compile(r"Errore imprevisto: |std::|terminate called|bad_alloc|basic_string|vector::|json\.exception")
# What works in slices between the user's doings, and to its end where no user is.
IN_SLICES = {("Sommativi1", "Cmd_Caso"), ("Caso", "Cmd_Sorteggia"), ("Caso", "ComboRepliche"),
             ("ProvaAvanti", "Cmd_Prova")}
GROWTH = 1.10  # of the last quarter over the second one


class Run:
    """One soak: operations, what they did, and what they took."""

    def __init__(self, options, base):
        self.options = options
        self.world = World(options.bin, base, options.archivio)
        self.console = Console(str(options.bin / "trv5-console"), base)
        self.rng = random.Random(options.seed)
        self.user = User(self.rng, self.console, self.world)
        self.operation, self.spent = 0, 0.0
        self.digests = hashlib.sha256()
        self.memory, self.heap, self.slowest = [], [], []
        self.kinds, self.refused, self.texts = collections.Counter(), collections.Counter(), collections.Counter()
        self.boxed, self.stopped = 0, False
        self.trace = open(options.trace, "w", encoding="utf-8") if options.trace else None

    def stop(self, *_):
        self.stopped = True

    def over(self):
        if self.stopped:
            return True
        if self.options.operations:
            return self.operation >= self.options.operations
        return self.spent >= self.options.minutes * 60

    def go(self):
        while not self.over():
            begin, used = time.monotonic(), self.console.seconds()
            if self.operation % self.options.session == 0:
                self.session()
            started = self.console.seconds()
            self.one()
            took, cpu = time.monotonic() - begin, self.console.seconds() - started
            self.spent += min(took, self.console.seconds() - used + 10)
            self.judge(cpu)
            self.operation += 1
            if self.operation % self.options.sample == 0:
                self.take_sample()
        self.close_session()

    def session(self):
        """Starts on a folder made afresh; the one before is closed by that."""
        before = self.world.folder
        if before is not None:
            self.close_session()
        self.user.route.clear()
        self.console.does("clock", "21/08/2026 10:00:00")
        self.console.does("start", str(self.world.begin()))
        self.heap.append(self.console.does("memory")["bytes"] / 1e6)
        if before is not None:
            self.world.forget(before)

    def close_session(self):
        """Into the digest goes what stands on all screens and in all files."""
        texts = soak_world.state(self.console, self.world)
        self.digests.update(soak_world.digest(texts).encode())
        if self.trace:
            for name, text in sorted(texts.items()):
                self.trace.write(f"state {name} {soak_world.digest(text)} {text[:2000]}\n")

    def one(self):
        screens = self.console.does("screens")["screens"]
        line, screen, control = self.user.next(screens)
        self.current = (line[0], screen, control)
        for answer in self.user.answers(screen, control):
            self.console.does("answer", *answer)
            self.user.left.append(answer[0])
        answer = self.console.say(*line)
        boxes = self.console.does("messages")["messages"]
        self.user.saw(screen, control, boxes)
        self.note(line, answer, boxes)
        if screens and not self.console.does("screens")["screens"]:
            self.user.ends[screen, control] += 1

    def note(self, line, answer, boxes):
        verb, screen, control = self.current
        if self.trace:
            told = self.world.plain(json.dumps([line, answer, boxes]))
            self.trace.write(f"{self.operation} {hashlib.sha256(told.encode()).hexdigest()[:8]} {told[:600]}\n")
        if answer["ok"]:
            self.user.reached[screen, control] += 1
            self.kinds[verb] += 1
        else:
            self.refused[verb] += 1
            if not REFUSALS.match(answer["error"]):
                raise Broken(f"the console says: {answer['error']}")
        self.boxed += bool(boxes)
        for box in boxes:
            self.texts[self.world.plain(box["text"])[:100]] += 1
            if FOREIGN.search(json.dumps(box, ensure_ascii=False)):
                raise Broken(f"an unexpected error: {box}")

    def judge(self, cpu):
        self.slowest = sorted(self.slowest + [(cpu, self.operation, *self.current)], reverse=True)[:10]
        if cpu > self.options.longest * (12 if self.current[1:] in IN_SLICES else 1):
            raise Broken(f"the operation took {cpu:.1f} s of the processor")

    def take_sample(self):
        self.memory.append(self.console.megabytes())
        if len(self.memory) % 10 == 0:
            print(f"{self.operation:>8} operations {self.spent / 60:>6.1f} min {self.memory[-1]:>7.1f} MB held, "
                  f"{self.heap[-1]:.1f} MB in use at the start of the session", flush=True)


def quarters(samples):
    size = len(samples) // 4
    return [statistics.median(samples[i * size:(i + 1) * size]) for i in range(4)] if size else []


def report(run):
    """What was done and how often; true when the memory stays flat."""
    print(f"\n{run.operation} operations in {run.spent / 60:.1f} min, seed {run.options.seed}, {run.boxed} of them "
          f"ended in a box, {sum(run.refused.values())} were refused, {run.world.sessions} sessions")
    print("done:", dict(run.kinds.most_common()), "refused:", dict(run.refused))
    screens = collections.Counter()
    for (screen, _), count in run.user.reached.items():
        screens[screen or "(program)"] += count
    print("screens:", dict(screens.most_common()))
    print("most frequent boxes:")
    for text, count in run.texts.most_common(12):
        print(f"{count:>8}  {text!r}")
    print("how often each control was reached:")
    for screen in sorted({screen for screen, _ in run.user.known}):
        names = sorted(name for on, name in run.user.known if on == screen)
        print(f"  {screen}: " + ", ".join(f"{name} {run.user.reached[screen, name]}" for name in names))
    never = [f"{s}.{n}{'' if usable else ' (always disabled)'}" for (s, n), usable in sorted(run.user.known.items())
             if not run.user.reached[s, n]]
    print(f"never reached, {len(never)} of {len(run.user.known)}:", ", ".join(never) or "none")
    print("slowest, in seconds of the processor:")
    for cpu, operation, verb, screen, control in run.slowest:
        print(f"{cpu:>8.2f}  operation {operation}: {verb} {screen} {control}")
    return flat(run)


def flat(run):
    """True when the program, started again in the same process, uses no more memory than before. What the process holds
    is told beside it: the sanitizer's allocator keeps more and more of what was freed."""
    held = quarters(run.memory)
    if held:
        print(f"memory held: medians of the quarters {', '.join(f'{part:.1f}' for part in held)} MB, "
              f"highest {max(run.memory):.1f} MB, {len(run.memory)} samples")
    parts = quarters(run.heap)
    if not parts:
        print("memory in use: too few sessions to tell")
        return True
    print(f"memory in use at the start of a session: medians of the quarters {', '.join(f'{part:.2f}' for part in parts)} "
          f"MB, last / second {parts[3] / parts[1]:.3f} (at most {GROWTH})")
    # A short run has not had all screens open yet by its second quarter.
    return len(run.heap) < 40 or parts[3] <= parts[1] * GROWTH


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bin", type=pathlib.Path)
    parser.add_argument("--minutes", type=float, default=5)
    parser.add_argument("--operations", type=int, default=0)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--archivio", type=pathlib.Path)
    parser.add_argument("--longest", type=float, default=5)
    parser.add_argument("--session", type=int, default=500, help="operations between two installations")
    parser.add_argument("--sample", type=int, default=50, help="operations between two looks at the memory")
    parser.add_argument("--trace", type=pathlib.Path)
    options = parser.parse_args()
    options.bin = options.bin.resolve()
    return options


def main():
    options = arguments()
    with tempfile.TemporaryDirectory(prefix="soak-") as folder:
        run = Run(options, pathlib.Path(folder))
        signal.signal(signal.SIGTERM, run.stop)
        try:
            run.go()
            good = report(run)
            run.console.finish()
            print(f"digest {run.digests.hexdigest()[:16]}")
        except Broken as fault:
            print(f"\nFAILED at operation {run.operation}: {fault}\nagain with: --seed {options.seed} --operations "
                  f"{run.operation + 1}{' --archivio FILE' if options.archivio else ''}\nthe last lines:")
            print("\n".join(run.console.last))
            print(run.console.complaints.read_text(errors="replace")[:20000])
            run.console.child.kill()
            return 1
    print("PASSED" if good else "FAILED: the memory grows")
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
