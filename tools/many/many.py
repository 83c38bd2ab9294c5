#!/usr/bin/env python3
"""Runs many bots in one `vorel run`, with the practice dream in the same process, and measures what they cost.

usage: many.py VOREL [COUNT...]      runs of so many bots; 1 10 100 1000 unless said

Each bot has a profile and a character of its own; all share one script, and are in one map. A guest comes to the dream
and whispers to each of them. For every run it prints how many are in and answer, how long that took, the anonymous
memory for each bot beyond the first run's, what a line to one of them costs, and what the process does when nothing
happens. Fails when a bot is missing, doesn't answer, or takes more memory than it may.
"""
import os, pathlib, re, socket, subprocess, sys, tempfile, time

LOOPBACK = "127.0.0.1"
MOST_MEMORY = 64             # KiB for each further bot, its share of the dream included
PATIENCE = 120               # seconds for all of them to log in
IDLE_SECONDS = 10
LINES, LINES_AT_ONCE = 20_000, 100
TRIGGERS = 300               # that answer nobody here


def script():
    heard = "\r\n".join(f"(0:3) When somebody says\r\n (1:2) {{word {n}}},\r\n  (5:12) whisper {{answer {n}}}."
                        for n in range(TRIGGERS))
    return ("VSPK 01.00 Vorel\r\n" + heard + "\r\n(0:6) When somebody whispers\r\n (1:2) {hello},\r\n"
            "  (5:12) whisper {Hello, [player]!}.\r\n*Endtriggers* 9999 *Endtriggers*\r\n")


def write_bots(folder, count):
    """The profiles' names. Furres are known by their colours, so each bot has its own."""
    (folder / "many.vs").write_text(script(), newline="")
    (folder / "tour.txt").write_text("wait for Nobody\n")    # the dream stays open until the run is ended
    for n in range(1, count + 1):
        colors = "t" + chr(ord("!") + n % 90) + chr(ord("!") + n // 90) + "#######"
        (folder / f"bot{n}.ini").write_text(
            f"Name=Bot{n}\r\nPassword=none\r\nDesc=One of many.\r\nColors={colors}\r\nSpec=111\r\n", newline="")
        (folder / f"bot{n}.tvm").write_text(
            f"[General]\r\nFurcadiaCharacter=bot{n}.ini\r\nOwners=Keeper\r\nMaps=Practice Dream\r\nPort=6000\r\n"
            "Script=many.vs\r\n", newline="")
    return [f"bot{n}.tvm" for n in range(1, count + 1)]


class Run:
    """`vorel run`, and what Linux knows of it."""

    def __init__(self, folder, count):
        self.process = subprocess.Popen(
            [VOREL, "run", "--practice", "--tour", "tour.txt", "--quiet", "--keep-split-lines", *write_bots(folder, count)],
            cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        self.proc = pathlib.Path(f"/proc/{self.process.pid}")

    def dream_port(self):
        """Where the dream listens; nothing while it does not yet."""
        own = {os.readlink(entry) for entry in (self.proc / "fd").iterdir() if entry.is_symlink()}
        for line in (self.proc / "net/tcp").read_text().splitlines()[1:]:
            fields = line.split()
            if fields[3] == "0A" and f"socket:[{fields[9]}]" in own:
                return int(fields[1].split(":")[1], 16)
        return None

    def anonymous(self):
        """KiB."""
        return int(re.search(r"RssAnon:\s+(\d+)", (self.proc / "status").read_text())[1])

    def cpu(self):
        """Seconds, of all its threads."""
        return sum(int((task / "schedstat").read_text().split()[0]) for task in (self.proc / "task").iterdir()) / 1e9

    def wake_ups(self):
        return sum(int(re.search(r"\nvoluntary_ctxt_switches:\s+(\d+)", (task / "status").read_text())[1])
                   for task in (self.proc / "task").iterdir())

    def descriptors(self):
        return len(os.listdir(self.proc / "fd"))

    def settle(self):
        """Waits until it has nothing to do but its timers."""
        before = self.cpu()
        while True:
            time.sleep(1)
            now = self.cpu()
            if now - before < 0.3:    # timers of many scripts take some, too
                return
            before = now

    def end(self):
        self.process.terminate()
        return self.process.wait(60)


class Guest:
    """A furre of the dream."""

    def __init__(self, port):
        self.peer = socket.create_connection((LOOPBACK, port), PATIENCE)
        self.peer.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        self.unread = b""
        self.send("connect Guest none", "vascodagama")

    def send(self, *lines):
        self.peer.sendall("".join(line + "\n" for line in lines).encode())

    def line(self):
        while b"\n" not in self.unread:
            piece = self.peer.recv(1 << 20)
            if not piece:
                raise SystemExit("many: the dream has closed")
            self.unread += piece
        line, self.unread = self.unread.split(b"\n", 1)
        return line.decode("cp1252")

    def await_lines(self, pattern, count):
        """The matches in so many lines that match, whatever comes between."""
        found = []
        while len(found) < count:
            if match := re.match(pattern, self.line()):
                found.append(match)
        return found

    def furres(self):
        self.send("who")
        return int(self.await_lines(r"\(\* (One|\d+) players? in", 1)[0][1].replace("One", "1"))

    def ask_all(self, count):
        """How many of the bots answer a whisper."""
        self.send(*(f"wh Bot{n} hello" for n in range(1, count + 1)))
        answers = self.await_lines(r'\(\[ (Bot\d+) whispers, "Hello, Guest!" to you', count)
        return len({answer[1] for answer in answers})

    def whisper_to_one(self, lines):
        """Lines that are not answered, and one that is."""
        for _ in range(lines // LINES_AT_ONCE):
            self.send(*["wh Bot1 nothing that it knows"] * LINES_AT_ONCE)
            self.await_lines(r"\(\[ You whisper", LINES_AT_ONCE)
        self.ask_all(1)


def wait_for(value, run):
    deadline = time.monotonic() + PATIENCE
    while not (found := value()):
        if run.process.poll() is not None or time.monotonic() > deadline:
            run.process.kill()
            raise SystemExit(f"many: it has not come about; status {run.process.poll()}")
        time.sleep(0.05)
    return found


def measure(count):
    with tempfile.TemporaryDirectory() as folder:
        began = time.monotonic()
        run, figures = Run(pathlib.Path(folder), count), {"in": count}
        try:
            guest = Guest(wait_for(run.dream_port, run))
            wait_for(lambda: guest.furres() == count + 1, run)
            figures["seconds"] = time.monotonic() - began
            run.settle()
            figures["login cpu"] = run.cpu()
            figures["answers"] = guest.ask_all(count)
            run.settle()
            figures["KiB"], figures["files"] = run.anonymous(), run.descriptors()
            wake_ups, cpu = run.wake_ups(), run.cpu()
            time.sleep(IDLE_SECONDS)
            figures["wake-ups/s"] = (run.wake_ups() - wake_ups) / IDLE_SECONDS
            idle = (run.cpu() - cpu) / IDLE_SECONDS
            figures["idle cpu"] = idle * 100
            cpu, began = run.cpu(), time.monotonic()
            guest.whisper_to_one(LINES)
            figures["µs/line"] = (run.cpu() - cpu - idle * (time.monotonic() - began)) / LINES * 1e6
        finally:
            figures["status"] = run.end()
        return figures


def main():
    counts = [int(argument) for argument in sys.argv[2:]] or [1, 10, 100, 1000]
    print("   bots answers  in after  CPU for it   anonymous  further bot  files  idle wake-ups  idle CPU  a line to one")
    first, failed = None, False
    for count in counts:
        f = measure(count)
        first = first or f
        further = (f["KiB"] - first["KiB"]) / (count - first["in"]) if count > first["in"] else 0
        print(f"{count:7} {f['answers']:7} {f['seconds']:7.1f} s {f['login cpu']:9.2f} s {f['KiB']:7} KiB {further:8.1f} KiB"
              f" {f['files']:6} {f['wake-ups/s']:10.1f}/s {f['idle cpu']:7.2f} % {f['µs/line']:11.1f} µs", flush=True)
        failed = failed or f["answers"] < count or f["status"] != 0 or further > MOST_MEMORY
    return 1 if failed else 0


if __name__ == "__main__":
    VOREL = os.path.abspath(sys.argv[1])
    sys.exit(main())
