#!/usr/bin/env python3
"""Plays peers that mean no good to the real `vorel`, on this computer only, and looks whether it keeps its bounds.

usage: hostile.py VOREL [NAME...]      all of them, or only those whose name begins so

For each it prints what was told, the most memory and descriptors used, how long an ending signal took, and the status.
"""
import os, pathlib, random, re, shutil, signal, socket, struct, subprocess, sys, tempfile, threading, time

MOST_MEMORY = 64 * 1024      # KiB of memory, whatever a peer does
MOST_DESCRIPTORS = 40
LONGEST_END = 1.0            # seconds from the signal to the end
SCRIPT = "VSPK 01.00 Vorel\r\n{}\r\n*Endtriggers* 9999 *Endtriggers*\r\n"
LOOPBACK = "127.0.0.1"
LOGIN_ENDS = b"desc "


def port_of(listener):
    return listener.getsockname()[1]


def free_port():
    with socket.create_server((LOOPBACK, 0)) as listener:
        return port_of(listener)


def reset(peer):
    peer.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
    peer.close()


def read_until(peer, mark):
    heard = b""
    while mark not in heard:
        piece = peer.recv(65536)
        if not piece:
            break
        heard += piece
    return heard


class Server:
    """Treats each one that connects as `treat(peer, number)` says, in a thread of its own."""

    def __init__(self, treat):
        self.listener = socket.create_server((LOOPBACK, 0))
        self.port, self.count, self.treat = port_of(self.listener), 0, treat
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            try:
                peer, _ = self.listener.accept()
            except OSError:
                return
            threading.Thread(target=self.run, args=(peer, self.count), daemon=True).start()
            self.count += 1

    def run(self, peer, number):
        try:
            self.treat(peer, number)
        except OSError:
            pass  # the bot has gone

    def close(self):
        # Wakes up who waits in accept.
        self.listener.shutdown(socket.SHUT_RDWR)
        self.listener.close()


class Program:
    """`vorel`, watched while it runs."""

    def __init__(self, folder, *arguments):
        self.folder, self.memory, self.descriptors = folder, 0, 0
        number = len(list(folder.glob("out*")))
        self.out, self.err = folder / f"out{number}", folder / f"err{number}"
        self.process = subprocess.Popen([VOREL, *arguments], cwd=folder, stdin=subprocess.DEVNULL,
                                        stdout=self.out.open("wb"), stderr=self.err.open("wb"))
        threading.Thread(target=self.watch, daemon=True).start()

    def watch(self):
        proc = pathlib.Path(f"/proc/{self.process.pid}")
        while self.process.poll() is None:
            try:
                peak = re.search(r"VmHWM:\s+(\d+)", (proc / "status").read_text())
                self.memory = max(self.memory, int(peak[1]) if peak else 0)
                self.descriptors = max(self.descriptors, len(os.listdir(proc / "fd")))
            except OSError:
                return
            time.sleep(0.02)

    def ends_within(self, seconds):
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None

    def is_running(self):
        return self.process.poll() is None

    def end(self):
        """The signal, if it still runs. Returns how long that took."""
        if not self.is_running():
            return 0.0
        began = time.monotonic()
        self.process.send_signal(signal.SIGTERM)
        if self.ends_within(15) is None:
            self.process.kill()
            self.process.wait()
        return time.monotonic() - began

    def said(self):
        return self.err.read_text(errors="replace")

    def shown(self):
        return self.out.read_bytes().decode("utf-8", "replace")


def wait_for(holds, seconds):
    deadline = time.monotonic() + seconds
    while not holds():
        if time.monotonic() > deadline:
            return False
        time.sleep(0.2)
    return True


class Failed(Exception):
    pass


def check(holds, what):
    if not holds:
        raise Failed(what)


class Stage:
    """A folder with a bot in it, and the programs and servers that one scene needs."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="hostile-"))
        self.programs, self.servers, self.notes = [], [], []

    def bot(self, script, *arguments, treat=None, port=None, settings=""):
        files = {"bot.ini": "Name=Bot\nPassword=made-up\nDesc=A bot\nColors=cccccccccc\nSpec=121\n",
                 "bot.vs": SCRIPT.format(script),
                 "bot.tvm": "[General]\nFurcadiaCharacter=bot.ini\nOwners=Ann\nMaps=Unknown\nScript=bot.vs\n" + settings}
        for name, text in files.items():
            (self.folder / name).write_text(text, newline="")
        if treat:
            self.server = Server(treat)
            self.servers.append(self.server)
            port = self.server.port
        return self.run("run", "bot.tvm", "--server", LOOPBACK, "--port", str(port), *arguments)

    def run(self, *arguments):
        program = Program(self.folder, *arguments)
        self.programs.append(program)
        return program

    def close(self):
        """Ends what runs; returns the limits that were broken."""
        broken = []
        for program in self.programs:
            took = program.end()
            status = program.process.returncode
            self.notes.append(f"{program.memory // 1024} MiB, {program.descriptors} descriptors, "
                              f"end in {took:.2f} s, status {status}")
            if program.memory > MOST_MEMORY:
                broken.append(f"{program.memory} KiB of memory")
            if program.descriptors > MOST_DESCRIPTORS:
                broken.append(f"{program.descriptors} descriptors")
            if took > LONGEST_END:
                broken.append(f"the signal took {took:.1f} s")
            if status < 0:
                broken.append(f"it crashed with signal {-status}")
            told = (program.said() + program.shown()[:2000]).splitlines()
            self.notes += [note for line in told if (note := "  " + line[:150]) not in self.notes][:6]
        for server in self.servers:
            server.close()
        shutil.rmtree(self.folder)
        return broken


# --- servers -----------------------------------------------------------------------------------------------------

def letting_in(then):
    """A server that lets the bot in first."""
    def treat(peer, number):
        read_until(peer, LOGIN_ENDS)
        peer.sendall(b";in.map\n")
        then(peer, number)
    return treat


def hang(peer, number):
    time.sleep(120)


def swallow(peer):
    """Reads all, in the background, and knows how many lines that were."""
    heard = []

    def read():
        try:
            while piece := peer.recv(65536):
                heard.append(piece.count(b"\n"))
        except OSError:
            pass
    threading.Thread(target=read, daemon=True).start()
    return heard


def flood(bytes_, seconds=5):
    def treat(peer, number):
        swallow(peer)
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            peer.sendall(bytes_)
        hang(peer, number)
    return letting_in(treat)


def close_after_login(peer, number):
    read_until(peer, b"[Tandry Vorel]\n")
    peer.close()


def reset_after_login(peer, number):
    read_until(peer, LOGIN_ENDS)
    reset(peer)


# --- scenes ------------------------------------------------------------------------------------------------------

RECONNECTS = "(0:2) gone,\r\n (5:2) note {event 3}\r\n (5:0) connect again."


def drops_at_once(stage):
    """a server that closes each login, a script that comes back"""
    stage.bot(RECONNECTS, treat=close_after_login)
    time.sleep(3)
    stage.notes.append(f"{stage.server.count} logins in 3 s")
    check(stage.server.count <= 5, "too many logins")


def resets_at_once(stage):
    """a server that breaks each login off"""
    bot = stage.bot(RECONNECTS, "--stay", treat=reset_after_login)
    time.sleep(3)
    stage.notes.append(f"{stage.server.count} logins in 3 s")
    check(bot.is_running() and 2 <= stage.server.count <= 4, "it should come back after pauses")
    check("event 3" not in bot.shown(), "a broken connection is no event")


def ends_with_69(stage):
    """a server that is lost: closed, broken off, not there"""
    for treat, port, reason in ((letting_in(lambda peer, _: peer.close()), None, "has ended the connection"),
                                (letting_in(lambda peer, _: reset(peer)), None, "was broken off"),
                                (None, free_port(), "Connection refused")):
        bot = stage.bot("", treat=treat, port=port)
        check(bot.ends_within(5) == 69, f"status {bot.process.returncode} instead of 69")
        check(reason in bot.said(), f"\"{reason}\" is not told")


def unreachable_stays(stage):
    """nobody there, --stay, and then there is"""
    port = free_port()
    bot = stage.bot("", "--stay", port=port)
    time.sleep(0.5)
    with socket.create_server((LOOPBACK, port)) as listener:
        listener.settimeout(10)
        peer, _ = listener.accept()
        check(LOGIN_ENDS in read_until(peer, LOGIN_ENDS), "no login")
        check(bot.is_running(), "it is gone")


def refuses_the_login(stage):
    """a server that closes five logins"""
    bot = stage.bot("", "--stay", treat=close_after_login)
    check(bot.ends_within(40) == 77, f"status {bot.process.returncode} instead of 77")
    check(stage.server.count == 5 and "check its name and password" in bot.said(), "five tries, and the reason")


def swallows_packets(stage):
    """a host that never answers"""
    listener = socket.create_server((LOOPBACK, 0), backlog=0)
    waiting = [socket.socket() for _ in range(3)]
    for one in waiting:
        one.setblocking(False)
        one.connect_ex(listener.getsockname())
    began = time.monotonic()
    bot = stage.bot("", port=port_of(listener))
    time.sleep(3)
    check("has not answered yet" in bot.shown(), "no word after three seconds")
    check(bot.ends_within(25) == 69 and 19 < time.monotonic() - began < 23, "it is to be given up after 20 s")


def stalls(stage):
    """a server that accepts, and then says and reads nothing"""
    bot = stage.bot("", treat=hang)
    time.sleep(2)
    check(bot.is_running(), "it is gone")


def cuts_lines(stage):
    """a server that cuts each line into bytes"""
    def treat(peer, number):
        peer.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        for byte in b"".join(b"(line %d\n" % i for i in range(200)):
            peer.send(bytes([byte]))
            time.sleep(0.0005)
        hang(peer, number)
    bot = stage.bot("", "--keep-split-lines", treat=letting_in(treat))
    wait_for(lambda: "line 199\n" in bot.shown(), 15)
    check(bot.shown() == "".join(f"line {i}\n" for i in range(200)), "lines were lost")


def floods(stage):
    """a server that sends as much as it can"""
    stage.bot("", "--quiet", treat=flood(b"(" + b"x" * 100 + b"\n"))
    stage.bot("(0:3) said,\r\n (5:300) nothing.", "--quiet", treat=flood((b"(Ann: " + b"x" * 200 + b"\n") * 500))
    time.sleep(5)


def floods_a_slow_script(stage):
    """short lines, milliseconds of the script for each; one server ends meanwhile"""
    slow = "(0:3) said,\r\n" + f" (5:68) take the variable {{v}} and store {{{'[message] ' * 30}}}.\r\n" * 300

    def leave(peer, number):
        swallow(peer)
        peer.settimeout(1)
        try:
            peer.sendall(b"(A: b\n" * 400_000)
        finally:
            peer.shutdown(socket.SHUT_WR)
            hang(peer, number)
    for treat in (flood(b"(A: b\n" * 5000, 20), letting_in(leave)):
        bot = stage.bot(slow, "--quiet", treat=treat)
        time.sleep(4)
        took = bot.end()
        check(took < LONGEST_END, f"the signal took {took:.1f} s")


def floods_and_loses_no_line(stage):
    """10 MB in one go, each line of it shown"""
    lines = 100_000

    def treat(peer, number):
        peer.sendall(b"".join(b"(%d %s\n" % (i, b"." * 90) for i in range(lines)))
        hang(peer, number)
    bot = stage.bot("", "--keep-split-lines", treat=letting_in(treat))
    size = sum(len(f"{i} {'.' * 90}\n") for i in range(lines))
    check(wait_for(lambda: bot.out.stat().st_size >= size, 60), "it takes too long")
    shown = bot.shown().splitlines()
    check(len(shown) == lines and all(line == f"{i} {'.' * 90}" for i, line in enumerate(shown)), "a line was cut")


def floods_without_a_line_end(stage):
    """a line that never ends"""
    bot = stage.bot("", treat=flood(b"(" + b"x" * 65535, 4))
    time.sleep(4.5)
    check(bot.shown().count("longer than 1 MiB") == 1, "it is to be told once")


def never_reads(stage):
    """a server that talks and never reads what the bot answers"""
    def treat(peer, number):
        while True:
            peer.sendall(b"(Ann: hello\n" * 100)
            time.sleep(0.001)
    answer = "(0:3) said,\r\n (5:8) say {" + "x" * 2000 + "}"
    bot = stage.bot(answer, "--quiet", "--brake", "0", treat=letting_in(treat))
    check(bot.ends_within(30) == 69, f"status {bot.process.returncode} instead of 69")
    check("has not been read" in bot.said(), "the reason is not told")


def hears_itself(stage):
    """an echo, and a script that answers its own words"""
    counts = [0]

    def treat(peer, number):
        peer.sendall(b'(You say, "go"\n')
        while piece := peer.recv(65536):
            says = piece.count(b'"on\n')
            counts[0] += says
            peer.sendall(b'(You say, "on"\n' * says)
    bot = stage.bot("(0:7) heard myself,\r\n (5:8) say {on}.", treat=letting_in(treat))
    time.sleep(5)
    stage.notes.append(f"{counts[0]} lines in 5 s")
    check(250 <= counts[0] <= 320, "200 at once and 20 a second is right")
    check(bot.shown().count("by line 3 of") == 1, "the script's line is to be named, once")


def sends_too_much(stage):
    """a script that sends without end, every second"""
    bot = stage.bot("(0:45) Every {1} seconds,\r\n (5:22) move {" + "l" * 3000 + "}.", treat=letting_in(hang_reading))
    time.sleep(3)
    check("They were dropped." in bot.shown(), "a long queue is to be emptied")


def hang_reading(peer, number):
    while peer.recv(65536):
        pass


def talks_rubbish(stage):
    """a server that sends random bytes"""
    statuses = []
    for seed in range(15):
        draw = random.Random(seed)
        rubbish = bytes(draw.choice(b"([]{}\"#;<>/&*%:~=0167 \nABw\r\t\xff\x00") if draw.random() < 0.9 else
                        draw.randrange(256) for _ in range(20_000))

        def treat(peer, number, rubbish=rubbish):
            peer.sendall(rubbish)
            hang(peer, number)
        bot = stage.bot("", "--quiet", treat=letting_in(treat))
        statuses.append(bot.ends_within(0.5))
    stage.notes.append(f"statuses {statuses}")
    check(all(status in (None, 0, 69, 70) for status in statuses), "another end than a named fault")


# --- local clients -----------------------------------------------------------------------------------------------

CLIENT = """#!/usr/bin/env python3
import socket, struct, time
port = int(open("proxy.ini").read().split()[1])
link = socket.create_connection(("127.0.0.1", port))
link.sendall(b"connect Bot made-up\\ncolor cccccccccc!\\"!\\ndesc A bot\\n")
{}
time.sleep(60)
"""


def with_client(stage, doing, treat, seconds, until=lambda bot: False):
    program = stage.folder / "client"
    program.write_text(CLIENT.format(doing))
    program.chmod(0o755)
    bot = stage.bot("", treat=treat, settings="ConnectClient=1\nFurcadiaClient=client\n")
    wait_for(lambda: until(bot), seconds)
    check(bot.is_running(), f"the bot is gone: {bot.said()}")
    bot.end()
    check(not (stage.folder / "proxy.ini").exists(), "proxy.ini is left behind")
    return bot


def client_floods(stage):
    """a client that sends as much as it can to a server that reads slowly"""
    def treat(peer, number):
        while peer.recv(4096):
            time.sleep(0.001)
    with_client(stage, "while True: link.sendall(b'\\\"' + b'x' * 100 + b'\\n')", treat, 5)


def client_never_reads(stage):
    """a client that reads nothing of a talkative game"""
    def let_go(bot):
        return "Client Socket Error 0: more than 1 MiB" in bot.shown()
    bot = with_client(stage, "time.sleep(30)", flood((b"(" + b"x" * 1000 + b"\n") * 100, 20), 20, let_go)
    check(let_go(bot), "the client is to be let go")


def client_resets(stage):
    """a client that breaks off"""
    doing = "link.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack('ii', 1, 0)); link.close()"
    bot = with_client(stage, doing, hang_reading, 2)
    check("Client Socket Error" in bot.shown(), "it is to be told")


def client_talks_rubbish(stage):
    """a client that sends random bytes, without line ends too"""
    with_client(stage, "import random\nlink.sendall(random.Random(1).randbytes(3_000_000) + b'x' * 3_000_000)",
                hang_reading, 2)


# --- the practice dream ------------------------------------------------------------------------------------------

def practice(stage, doing):
    dream = stage.run("practice", "--port", "0")
    while not (found := re.search(r"port (\d+)", dream.shown())):
        time.sleep(0.05)
    doing(lambda: socket.create_connection((LOOPBACK, int(found[1]))))
    return dream


LOGIN = b"connect Guest%d x\ncolor cccccccccc!!!\n\nvascodagama\n"


def practice_crowd(stage):
    """300 guests that come and go"""
    def doing(connect):
        for i in range(300):
            guest = connect()
            guest.sendall(LOGIN % i)
            reset(guest) if i % 2 else guest.close()
        time.sleep(0.5)
    dream = practice(stage, doing)
    left = len(os.listdir(f"/proc/{dream.process.pid}/fd"))
    check(left < 20, f"{left} descriptors are still open")
    dream.descriptors = left  # while they come there are as many as there are guests


def practice_flood(stage):
    """guests that flood, that never read, that talk rubbish"""
    def doing(connect):
        guests = [connect() for _ in range(3)]
        for i, guest in enumerate(guests):
            guest.sendall(LOGIN % i)
            guest.settimeout(0.2)
        pieces = [b'"hello\n' * 5000, b"who\n" * 5000, random.Random(2).randbytes(50_000)]
        until = time.monotonic() + 5
        while time.monotonic() < until:
            for guest, piece in zip(guests, pieces):
                try:
                    guest.sendall(piece)
                except OSError:
                    pass
    practice(stage, doing)


SLOW = [refuses_the_login, swallows_packets]  # they mostly wait, and so beside the others
SCENES = [drops_at_once, resets_at_once, ends_with_69, unreachable_stays, stalls, cuts_lines, floods,
          floods_a_slow_script, floods_and_loses_no_line, floods_without_a_line_end, never_reads, hears_itself, sends_too_much, talks_rubbish,
          client_floods, client_never_reads, client_resets, client_talks_rubbish, practice_crowd, practice_flood]

printing = threading.Lock()


def play(scene):
    stage = Stage()
    broken = []
    try:
        scene(stage)
    except Failed as why:
        broken.append(str(why))
    except Exception as why:  # the peer's own trouble is worth a look too
        broken.append(repr(why))
    broken += stage.close()
    with printing:
        print(f"{'FAILED' if broken else 'ok':6} {scene.__name__}: {scene.__doc__}")
        for note in stage.notes + ["!! " + why for why in broken]:
            print("       " + note)
        sys.stdout.flush()
    return not broken


def main():
    global VOREL
    VOREL = os.path.abspath(sys.argv[1])
    wanted = sys.argv[2:]
    chosen = [scene for scene in SLOW + SCENES
              if not wanted or any(scene.__name__.startswith(name) for name in wanted)]
    results = []
    beside = [threading.Thread(target=lambda scene=scene: results.append(play(scene)))
              for scene in chosen if scene in SLOW]
    for thread in beside:
        thread.start()
    for scene in chosen:
        if scene not in SLOW:
            results.append(play(scene))
    for thread in beside:
        thread.join()
    print(f"{results.count(True)} of {len(chosen)} kept their bounds")
    return 0 if chosen and all(results) else 1


if __name__ == "__main__":
    signal.alarm(175)  # it ends by itself, whatever hangs
    sys.exit(main())
