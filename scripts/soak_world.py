"""What a soak run works on: the console as a child, a program folder made afresh, the whole state as a digest."""
import collections
import hashlib
import http.server
import json
import os
import pathlib
import re
import select
import shutil
import sqlite3
import subprocess
import threading

WHEELS = ["BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"]
SANITIZERS = {
    # What was freed stands in the way of seeing what grows, and so do the places of allocations, which the sanitizer
    # keeps for ever. The status tells a report from a line not understood.
    "ASAN_OPTIONS": "quarantine_size_mb=4:thread_local_quarantine_size_kb=64:malloc_context_size=2:exitcode=77"
                    ":detect_leaks=1:allocator_release_to_os_interval_ms=500",
    "LSAN_OPTIONS": "exitcode=78:report_objects=0:print_suppressions=0",
    "UBSAN_OPTIONS": "print_stacktrace=1:exitcode=77",
}


class Broken(Exception):
    """What no run may show."""


class Console:
    """The program under test: a line, its answer, and what that took."""

    def __init__(self, program, folder):
        environment = dict(os.environ, HOME=str(folder), XDG_DATA_HOME=str(folder / "dati"), **SANITIZERS)
        environment["XDG_CONFIG_HOME"] = environment["XDG_CACHE_HOME"] = str(folder / "config")
        self.complaints = folder / "stderr"
        with open(self.complaints, "wb") as errors:
            self.child = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=errors,
                                          cwd=folder, env=environment)
        self.last = collections.deque(maxlen=20)

    def say(self, *words):
        line = json.dumps(words)
        self.last.append(line if len(line) < 400 else line[:400] + "..")
        try:
            self.child.stdin.write(line.encode() + b"\n")
            self.child.stdin.flush()
            self.wait()
            answer = self.child.stdout.readline()
        except BrokenPipeError:
            answer = b""
        if not answer:
            raise Broken(f"the program ended with {self.child.wait()}")
        try:
            return json.loads(answer)
        except ValueError as error:
            raise Broken(f"no JSON: {answer[:200]!r} ({error})") from error

    def wait(self):
        """Until an answer is there. A program that was stopped is waited for, one that hangs isn't."""
        begin, idle = self.seconds(), 0
        while not select.select([self.child.stdout], [], [], 5)[0]:
            idle += 1
            if self.seconds() - begin > 120 or idle > 60:
                self.child.kill()
                raise Broken("the program hangs")

    def does(self, *words):
        answer = self.say(*words)
        if not answer["ok"]:
            raise Broken(f"{words} was refused: {answer['error']}")
        return answer

    def seconds(self):
        """Processor time of the program so far, all threads together."""
        fields = pathlib.Path(f"/proc/{self.child.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def megabytes(self):
        """Memory that the program holds now."""
        for line in pathlib.Path(f"/proc/{self.child.pid}/status").read_text().splitlines():
            if line.startswith("VmRSS"):
                return int(line.split()[1]) / 1024
        return 0.0

    def finish(self):
        self.say("quit")
        self.child.stdin.close()
        # Looking for leaks takes a while.
        status = self.child.wait(timeout=600)
        complaints = self.complaints.read_text(errors="replace")
        if status not in (0, 1) or complaints:
            raise Broken(f"status {status} at the end, on the error channel: {complaints[:20000]}")


class Server(http.server.ThreadingHTTPServer):
    """Where the program finds its updates: the file asked for, or an error of a server."""
    daemon_threads = True

    def __init__(self, file):
        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                body = file.read_bytes()
                self.send_response(200)
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)

            def log_message(self, *_):
                pass

        super().__init__(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.serve_forever, daemon=True).start()


class World:
    """Program folders, one a session, each made out of the same template."""

    def __init__(self, bin_folder, base, archive):
        self.base, self.template, self.folder, self.sessions = base, base / "modello", None, 0
        data = str(bin_folder / "trv5-data")
        self.template.mkdir()
        if archive:
            shutil.copyfile(archive, self.template / "Archivio.mdb")
        else:
            self.run(data, "demo", "Archivio.mdb")
        self.run(data, "modello", "DbTRV5.mdb")
        self.run(data, "esporta-vuoto", "TRV5_Export.mdb")
        self.write_files()
        self.server = Server(self.template / "aggiornamento.txt")

    def run(self, *command):
        subprocess.run(command, cwd=self.template, check=True, stdout=subprocess.DEVNULL)

    def write_files(self):
        """What a user may point a dialog at."""
        archive = sqlite3.connect(self.template / "Archivio.mdb")
        draws = list(archive.execute("SELECT * FROM EstrazioniLotto ORDER BY DataEstrazione DESC LIMIT 60"))[::-1]
        archive.close()
        update, history = [], ""
        for date, *cells in draws:
            year, month, day = date.split("-")
            wheels = [cell or "00-00-00-00-00" for cell in cells[:11]]
            update.append(" ".join([f"{day}/{month}/{year}"] + wheels) + " pr\r\n")
            for wheel, cell in zip(WHEELS, wheels):
                history += f"{year}/{month}/{day}\t{wheel}\t" + cell.replace("-", "\t") + "\n"
        # The last ones again, a year later: draws that the archive lacks.
        later = [line[:6] + str(int(line[6:10]) + 1) + line[10:] for line in update[-5:]]
        (self.template / "aggiornamento.txt").write_text("".join(update + later), newline="")
        (self.template / "storico.txt").write_text(history)
        (self.template / "rotto.txt").write_bytes(bytes(range(256)) * 8)
        (self.template / "vuoto.txt").write_bytes(b"")

    def begin(self):
        """A program folder as it is after the installation; the one before is gone once the next has started."""
        self.sessions += 1
        self.folder = self.base / f"sessione{self.sessions:04}"
        shutil.copytree(self.template, self.folder)
        shutil.copyfile(self.folder / "Archivio.mdb", self.folder / "Altro.mdb")
        main = sqlite3.connect(self.folder / "DbTRV5.mdb")
        host = f"http://127.0.0.1:{self.server.server_port}"
        for name, value in (("PercorsoArchivio", str(self.folder / "Archivio.mdb")), ("HostWebAggiornamento", host),
                            ("IndirizzoInternet", host)):
            main.execute("INSERT OR REPLACE INTO ParametriProgramma (Parametro, Valore1) VALUES (?, ?)", (name, value))
        main.commit()
        main.close()
        return self.folder

    def forget(self, folder):
        shutil.rmtree(folder, ignore_errors=True)
        shutil.rmtree(self.base / "dati", ignore_errors=True)

    def plain(self, text):
        """The text without what differs from run to run: the place of the folders, the server's port, files' times."""
        text = text.replace(str(self.base), "<DIR>").replace(f"127.0.0.1:{self.server.server_port}", "<HOST>")
        # When the draft was written is told by the disk.
        return re.sub(r"(il lavoro del )[\d/]+ [\d:]+", r"\1..", text)


def contents(file):
    """All rows of a database, in their order; of another file its bytes as characters."""
    data = file.read_bytes()
    if data[:15] != b"SQLite format 3":
        return data.decode("latin-1")
    database = sqlite3.connect(f"file:{file}?mode=ro", uri=True)
    try:
        names = [row[0] for row in database.execute("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY 1")]
        # A password's salt is drawn anew each time.
        return {name: list(database.execute(f'SELECT * FROM "{name}"')) for name in names if name != "Protezione"}
    finally:
        database.close()


def shown(console, screen, control):
    if control["kind"] == "grid":
        return console.does("dump", screen, control["name"])
    if control["kind"] in ("lines", "combo"):
        return [console.does("list", screen, control["name"]), console.does("get", screen, control["name"])]
    return console.does("get", screen, control["name"])


def state(console, world):
    """All controls of all open screens and all files of the program folder, as one text for each."""
    parts = {}
    for screen in console.does("screens")["screens"]:
        for control in console.does("controls", screen)["controls"]:
            parts[f"{screen}.{control['name']}"] = shown(console, screen, control)
    for file in sorted(world.folder.rglob("*")):
        if file.is_file() and file.suffix not in (".pdf", ".png", ".xlsx"):
            parts[str(file.relative_to(world.folder))] = contents(file)
    return {name: world.plain(json.dumps(part, sort_keys=True, default=repr)) for name, part in parts.items()}


def digest(texts):
    return hashlib.sha256(json.dumps(texts, sort_keys=True).encode()).hexdigest()[:16]
