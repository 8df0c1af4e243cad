"""The user of a soak run: what to do next, drawn at random over the screens and controls that the console tells of."""
import collections

from soak_world import Broken

BENCH = "Sommativi1"
SEARCHES = ["Command20", "Command11", "Command13", "Command15", "Command23", "Command17", "Command16", "Command7",
            "Command18", "Command10", "Command1", "Command2", "Command77", "Command101", "Command100", "Command99"]
# Ways that lead somewhere: (verb, control[, value]) on the workbench, or on the screen that stands before the control.
# "?" is drawn: an item, a cell, a text. A list of names is one of them.
CASES = [("set", "SSTab1", 1), ("set", "ComboFiltro", "?"), ("set", "ComboPar", "?"), ("set", "ComboR1", "?"),
         ("set", "ComboNC", 20), ("click", "Label19"), ("cell", "FgNu", "?"), ("cell", "FgNu", "?"),
         ("cell", "FgNu", "?"), ("click", ["Command24", "Command25", "Command26"]), ("click", "Command6"),
         ("cell", "FgRG", "?"), ("cell", "FgRR", "?"), ("click", "Command44"), ("cell", "FgEv", "?")]
AMBATE = [("set", "SSTab3", 0), ("set", "Combo1R_2N", "?"), ("set", "ChFix1R", "?"), ("click", SEARCHES),
          ("cell", "FgF", "?"), ("click", "Cmd_LaSorte_1"), ("click", "Command29"), ("cell", "FgZ1", "?")]
ROUTES = {
    "cases": CASES,
    "plain cases": [("click", "Command41"), ("set", "SSTab1", 1), ("set", "ComboR1", "?"), ("set", "ComboNC", "?"),
                    ("click", "LblPN_1"), ("cell", "FgRG", "?"), ("click", "Command44")],
    "ambate": AMBATE,
    "ambi": [("set", "SSTab3", 1), ("click", ["Command28", "Command39", "Command37", "Command31", "Command105"]),
             ("cell", "FgF", "?"), ("click", "Cmd_LaSorte_2"), ("click", "Command34"), ("click", "Command5"),
             ("click", "Command64")],
    "terni": [("set", "SSTab3", 2), ("click", ["Command46", "Command43", "Command45", "Command40", "Command107"]),
              ("cell", "FgF", "?"), ("click", "Cmd_LaSorte_3"), ("click", "Command48"), ("click", "Command73")],
    "lunghetta": [("set", "SSTab3", 4), ("click", "Command30"), ("set", "ComboSorte", "?"),
                  ("click", ["Command56", "Command58", "Command57", "Command59", "Command108"]), ("cell", "FgF", "?"),
                  ("click", "Cmd_LaSorte_6"), ("click", "Command51"), ("click", "Cmd_Elabora100"),
                  ("click", "Command85")],
    "summary": [("set", "SSTab3", 3), ("set", "ChA", 1), ("set", "ChB", "?"), ("set", "Ch1esito", "?"),
                ("click", "Command86"), ("cell", "FgZZ", "?"), ("click", "Command98")],
    "again": [("set", "hs1", "?"), ("click", "Command87"), ("click", "Cmd_Annulla"), ("click", "Cmd_Annulla"),
              ("click", "Cmd_Ripeti")],
    "forecasts": [("set", "SSTab3", 5), ("click", "Command35"), ("click", ["Command50", "Command55", "Command60"]),
                  ("click", "Command102")],
    "save": [("set", "SSTab3", 9), ("set", "Txt_Denominazione", "?"), ("click", "Command4"), ("click", "Cmd_Elenco")],
    "take up": [("set", "SSTab3", 9), ("click", "Cmd_Elenco"), ("cell", "FgPir1", "?"), ("click", "Command29")],
    "delete": [("set", "SSTab3", 9), ("click", "Cmd_Elenco"), ("cell", "FgPir1", "?"), ("click", "Command54")],
    "luck": [("click", "Command44"), ("set", "ChFix1R", 0), ("click", "Command20"), ("click", "Cmd_Caso"),
             ("click", "Caso.Cmd_Sorteggia"), ("click", "Cmd_Avanti"), ("set", "ProvaAvanti.ComboImpara", "?"),
             ("click", "ProvaAvanti.Cmd_Prova")],
    "a new draw": [("click", "Container.Command1"), ("set", "archivio.SSTab1", 0), ("click", "archivio.Command1"),
                   ("draw", ""), ("click", "archivio.Command12"), ("set", "archivio.MonthView1", "?"),
                   ("click", "archivio.Command6"), ("set", "archivio.txtin_3", "?"), ("click", "archivio.Command8")],
    "corrections": [("click", "Container.Command1"), ("set", "archivio.SSTab1", 0),
                    ("set", "archivio.HScrestrazione", "?"), ("set", "archivio.txtin_7", "?"),
                    ("click", ["archivio.Command3", "archivio.Command3", "archivio.Command2"])],
    "update": [("click", "Container.Command1"), ("set", "archivio.SSTab1", 2), ("set", "archivio.Check3", "?"),
               ("click", ["archivio.Command27", "archivio.Command18", "archivio.Command21", "archivio.Cmd_Storico"]),
               ("cell", "archivio.FgImporta", "?"), ("click", "archivio.Command28")],
    "exchange": [("click", "Container.Command2"), ("set", "ImportExport.SSTab1", "?"),
                 ("click", ["ImportExport.Command1", "ImportExport.Cmd_CreaVuoto"]), ("click", "ImportExport.Command2"),
                 ("click", "ImportExport.Command3"), ("click", "ImportExport.Command4"),
                 ("cell", "ImportExport.Fg1", "?"), ("click", "ImportExport.Command5"),
                 ("set", "ImportExport.Txt_Denominazione", "?"), ("click", "ImportExport.Command6")],
    "all methods": [("set", "SSTab3", 7), ("click", "Command106"), ("set", "SSTab4", "?"),
                    ("click", ["Command114", "Command115", "Command116"])],
}
KINDS = {"button": 8, "grid": 6, "label": 3, "check": 2, "combo": 3, "text": 3, "scroll": 1, "tabs": 2, "calendar": 1}
KEYS = ["Enter", "Esc", "Tab", "Shift+Tab", "Left", "Right", "Up", "Down", "Home", "End", "PageUp", "PageDown", "Space",
        "Backspace", "Delete", "F1", "F3", "F5", "Ctrl+z", "Ctrl+y", "Ctrl+c", "Ctrl+v", "Ctrl+a", "Ctrl+s", "Ctrl+f",
        "Ctrl+Tab", "Alt+r", "Alt+v", "1", "9", "a", "è"]
TEXTS = ["", " ", "1-30-60-90", "05.17.33.64.90", "FI", "Metodo di prova", "Firenze d'estate", "0", "91", "-1", "007",
         "99999999999999999999", "21/08/2026", "31/02/2026", "1/1/1939", "'; DROP TABLE Elenco_Memo; --", "%s%n%d",
         "{}", "perché è così €", "\U0001F600 e altro", "riga\ncon\ttabulazioni\r\n", "\u202etesto\u0301",
         "a" * 300, "7" * 50000, "http://127.0.0.1:9/", "../../..", "/dev/null", "N1 + N2", "50", "7370"]
CLIPS = TEXTS + ["Bari 1\r\nBari 2", "1\t2\t3\r\n4\t5\t6", "1-2-3-4-5 " * 11]


class User:
    """Draws operations; learns which boxes a control shows, which of them ends the program, what was reached."""

    def __init__(self, rng, console, world):
        self.rng, self.console, self.world = rng, console, world
        self.route = collections.deque()
        self.boxes = {}  # what a control asked, the longest time
        self.left = collections.deque()  # answers that no box has taken yet
        self.reached, self.known, self.ends = collections.Counter(), {}, collections.Counter()
        self.saved = 0

    def controls(self, screen):
        found = {c["name"]: c for c in self.console.does("controls", screen)["controls"]}
        for name, control in found.items():
            if control["kind"] in KINDS and (control["kind"] not in ("label", "grid") or control["acts"]):
                self.known[screen, name] = self.known.get((screen, name), False) or control["enabled"]
        return found

    def next(self, screens):
        """(the line to send, its screen, its control)"""
        if not screens:
            return ["start", str(self.world.folder)], "", "start"
        chance = self.rng.random()
        if chance < 0.004:
            return ["start", str(self.world.folder)], "", "start"
        if chance < 0.01:
            return ["clock", self.moment()], "", "clock"
        if chance < 0.015:
            return ["clipboard", self.rng.choice(CLIPS)], "", "clipboard"
        if screens == ["INIZIO"] and chance < 0.8:
            return ["click", "INIZIO", "Command2"], "INIZIO", "Command2"
        if screens == ["Container"] and chance < 0.5:
            return ["click", "Container", "Command4"], "Container", "Command4"
        if BENCH in screens and (self.route or chance < 0.2):
            return self.step(screens)
        self.route.clear()
        screen = self.rng.choice([screens[-1], screens[-1], self.rng.choice(screens)])
        if chance > 0.985:
            return self.shot(screen), screen, "shot"
        return self.anything(screen)

    def step(self, screens):
        if not self.route:
            self.route.extend(ROUTES[self.rng.choice(list(ROUTES))])
        verb, name, *value = self.route.popleft()
        if verb == "draw":
            return ["clipboard", "-".join(f"{n:02}" for n in self.rng.choices(range(1, 91), k=55))], "", "clipboard"
        if isinstance(name, list):
            name = self.rng.choice(name)
        screen, name = name.split(".") if "." in name else (BENCH, name)
        if screen not in screens:
            self.route.clear()
            return self.anything(screens[-1])
        found = self.controls(screen).get(name)
        if found is None:
            raise Broken(f"a route leads to a control that isn't there: {screen}.{name}")
        if not found["enabled"]:
            self.route.clear()
            return self.anything(screen)
        if verb == "click":
            return ["click", screen, name], screen, name
        if verb == "cell" or value == ["?"]:
            return self.act(screen, found), screen, name
        return ["set", screen, name, *value], screen, name

    def anything(self, screen):
        groups = collections.defaultdict(list)
        for control in self.controls(screen).values():
            useless = control["kind"] in ("label", "grid") and not (control["acts"] or control["double"])
            # Looking at a grid without an operation has its use, though a smaller one.
            if control["kind"] in KINDS and (not useless or (control["kind"] == "grid" and self.rng.random() < 0.1)):
                groups[control["kind"]].append(control)
        kinds = [kind for kind in KINDS if kind in groups]
        if not kinds:
            return self.shot(screen), screen, "shot"
        group = groups[self.rng.choices(kinds, [KINDS[kind] for kind in kinds])[0]]
        usable = [c for c in group if c["enabled"]] if self.rng.random() < 0.98 else group
        some = [self.rng.choice(usable or group) for _ in range(3)]
        control = min(some, key=lambda c: self.reached[screen, c["name"]] + 30 * self.ends[screen, c["name"]])
        if self.rng.random() < 0.06:
            return ["key", screen, control["name"], self.rng.choice(KEYS)], screen, control["name"]
        return self.act(screen, control), screen, control["name"]

    def act(self, screen, control):
        """The line of what one does with a control of its kind."""
        kind, name, rng = control["kind"], control["name"], self.rng
        if kind == "grid":
            return self.cell(screen, control)
        if kind == "tabs":
            return ["set", screen, name, rng.choice(control["tabs"] or [0])]
        if kind == "combo":
            typed = control["editable"] and rng.random() < 0.2 or control["items"] == 0
            return ["set", screen, name, rng.choice(TEXTS) if typed else rng.randrange(control["items"])]
        if kind == "check":
            return ["set", screen, name, rng.randrange(2)]
        if kind == "scroll":
            low, high = control["minimum"], control["maximum"]
            return ["set", screen, name, rng.choice([low, high, max(low, high - 20), rng.randint(low, high)])]
        if kind == "calendar":
            return ["set", screen, name, self.moment()[:10]]
        if kind == "text" and (not control["double"] or rng.random() < 0.8):
            return ["set", screen, name, rng.choice([str(rng.randint(1, 90))] * 25 + TEXTS)]
        return ["dblclick" if control["double"] and rng.random() < 0.3 else "click", screen, name]

    def cell(self, screen, grid):
        rng = self.rng
        if grid["rows"] == 0 or grid["columns"] == 0:
            return ["dump", screen, grid["name"]]
        first = min(grid["headings"], grid["rows"] - 1) if rng.random() < 0.93 else 0
        # The first rows are what a user looks at.
        row = rng.choice([first, min(first + rng.randrange(4), grid["rows"] - 1), rng.randrange(first, grid["rows"])])
        if grid["choices"] and row >= grid["headings"] and rng.random() < 0.5:
            column = rng.choice(sorted(grid["choices"]))
            return ["edit", screen, grid["name"], row, int(column), rng.choice(grid["choices"][column])]
        column = rng.randrange(grid["columns"])
        return ["cell", screen, grid["name"], row, column, "dblclick" if rng.random() < 0.2 else "click"]

    def shot(self, screen):
        looks = {"width": self.rng.randint(640, 1920), "height": self.rng.randint(480, 1080),
                 "dark": self.rng.random() < 0.5, "points": self.rng.choice([9, 10, 12, 16])}
        return ["shot", screen, str(self.world.base / "schermata.png"), looks]

    def moment(self):
        day = f"{self.rng.randint(1, 28):02}/{self.rng.randint(1, 12):02}/{self.rng.randint(2024, 2027)}"
        return f"{day} {self.rng.randrange(24):02}:{self.rng.randrange(60):02}:{self.rng.randrange(60):02}"

    def answers(self, screen, control):
        """What to queue for the boxes that the control is known to show; now and then nothing, which cancels them."""
        kinds = self.boxes.get((screen, control), [])
        if self.left or self.rng.random() < 0.1:
            return []
        return [self.answer(kind, pattern) for kind, pattern in kinds]

    def answer(self, kind, pattern):
        rng = self.rng
        if kind == "confirm":
            return [rng.choice(["yes", "yes", "no"])]
        if kind == "input":
            number = str(rng.randint(1, 7370))
            return rng.choice([["ok"], ["text", number], ["text", number], ["text", self.moment()[:10]],
                               ["text", rng.choice(TEXTS)]])
        folder = self.world.folder
        if kind == "print":
            return ["file", str(folder / "stampa.pdf")]
        if kind == "save":
            self.saved += 1
            fresh = f"esportato{self.saved % 5}"
            return ["file", str(folder / rng.choice([fresh, fresh, "esportato.mdb", "manca/qui.mdb", "Altro.mdb"]))]
        files = sorted(file.name for file in folder.iterdir() if file.name != "DbTRV5.mdb")
        fitting = [name for name in files if pattern and name.lower().endswith(pattern.lstrip("*").lower())]
        offered = rng.choice([fitting or files, fitting or files, files, ["manca.mdb"]])
        return ["file", str(folder / rng.choice(offered))]

    def saw(self, screen, control, boxes):
        """Learns from the boxes shown; keeps account of the answers, as the console takes them."""
        asked = [(box["kind"], box.get("filter", "")) for box in boxes if box["kind"] not in ("message", "address")]
        if len(asked) > len(self.boxes.get((screen, control), [])):
            self.boxes[screen, control] = asked
        for box in boxes:
            if not self.left or box["kind"] == "address":
                continue
            if box["kind"] != "message" or self.left[0] in ("ok", "cancel"):
                self.left.popleft()
