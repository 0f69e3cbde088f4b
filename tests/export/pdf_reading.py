"""Reads what the pages of a PDF file draw, through qpdf: a small interpreter of content streams.

Good for files that draw with few operators; others raise an error. Everything is given in user
space of the page: points from its lower left corner.
"""

import base64
import json
import re
import subprocess
from dataclasses import dataclass

TOKEN = re.compile(rb"/[^\s/\[\]<>()]+|<[0-9a-fA-F]*>|\[|\]|[^\s/\[\]<>()]+")


@dataclass
class Text:
    text: str
    x: float
    baseline: float
    end: float  # where the last glyph starts
    size: float
    colour: tuple
    font: str


@dataclass
class Path:
    kind: str  # "fill" or "stroke"
    subpaths: list  # of lists of points; curves with their control points
    colour: tuple
    alpha: float
    width: float


@dataclass
class Image:
    x: float
    y: float
    width: float
    height: float


def times(left, right):
    a, b, c, d, e, f = left
    g, h, i, j, k, l = right
    return (a * g + b * i, a * h + b * j, c * g + d * i, c * h + d * j,
            e * g + f * i + k, e * h + f * j + l)


def apply(matrix, x, y):
    a, b, c, d, e, f = matrix
    return a * x + c * y + e, b * x + d * y + f


class PdfFile:
    def __init__(self, path):
        # "--check" exits with an error for a file that is damaged in any way.
        subprocess.run(["qpdf", "--check", path], check=True, capture_output=True)
        done = subprocess.run(
            ["qpdf", "--json=2", "--json-stream-data=inline", "--decode-level=generalized", path],
            check=True, capture_output=True)
        self.objects = json.loads(done.stdout)["qpdf"][1]
        self.root = self.value(self.objects["trailer"]["value"]["/Root"])
        self.pages = self.page_tree(self.root["/Pages"], None)

    def value(self, reference):
        """An object's value, or a stream's dictionary; what is no reference stands for itself."""
        if isinstance(reference, str) and re.fullmatch(r"\d+ \d+ R", reference):
            entry = self.objects["obj:" + reference]
            return entry["stream"]["dict"] if "stream" in entry else entry["value"]
        return reference

    def stream(self, reference):
        return base64.b64decode(self.objects["obj:" + reference]["stream"]["data"])

    def page_tree(self, reference, parent):
        """The pages below a node. Parents and counts must be right."""
        node = self.value(reference)
        assert node.get("/Parent") == parent, node
        if node["/Type"] == "/Page":
            return [node]
        pages = [page for kid in node["/Kids"] for page in self.page_tree(kid, reference)]
        assert node["/Count"] == len(pages), node
        return pages

    def information(self):
        return self.value(self.objects["trailer"]["value"]["/Info"])

    def inherited(self, page, key):
        while key not in page:
            page = self.value(page["/Parent"])
        return self.value(page[key])

    def drawn(self, page):
        return Interpreter(self, page).run()


class Interpreter:
    def __init__(self, file, page):
        self.file = file
        self.page = page
        self.resources = file.inherited(page, "/Resources")
        self.maps = {}
        self.drawn = []
        self.path = []
        self.stack = []
        self.state = {"ctm": (1, 0, 0, 1, 0, 0), "fill": (0, 0, 0), "stroke": (0, 0, 0), "width": 1,
                      "alpha": 1.0}

    def run(self):
        contents = self.page["/Contents"]
        contents = contents if isinstance(contents, list) else [contents]
        data = b"\n".join(self.file.stream(each) for each in contents)
        operands = []
        for token in TOKEN.findall(data):
            if re.fullmatch(rb"[a-zA-Z*]+", token):
                self.perform(token.decode(), operands)
                operands = []
            else:
                operands.append(token)
        return self.drawn

    def perform(self, operator, operands):
        numbers = [float(each) for each in operands if re.fullmatch(rb"[-+.\d]+", each)]
        names = [each.decode() for each in operands if each.startswith(b"/")]
        handler = getattr(self, "do_" + operator.replace("*", "_star"))
        handler(numbers, names, operands)

    # Graphics state

    def do_q(self, *_):
        self.stack.append(dict(self.state))

    def do_Q(self, *_):
        self.state = self.stack.pop()

    def do_cm(self, numbers, *_):
        self.state["ctm"] = times(numbers, self.state["ctm"])

    def do_w(self, numbers, *_):
        self.state["width"] = numbers[0]

    def do_gs(self, _, names, *__):
        settings = self.file.value(self.resources["/ExtGState"])
        self.state["alpha"] = self.file.value(settings[names[0]]).get("/ca", 1.0)

    def do_scn(self, numbers, *_):
        self.state["fill"] = tuple(numbers)

    def do_SCN(self, numbers, *_):
        self.state["stroke"] = tuple(numbers)

    def ignore(self, *_):
        pass

    do_cs = do_CS = do_d = do_j = do_J = ignore

    # Paths

    def at(self, x, y):
        return apply(self.state["ctm"], x, y)

    def do_m(self, numbers, *_):
        self.path.append([self.at(*numbers)])

    def do_l(self, numbers, *_):
        self.path[-1].append(self.at(*numbers))

    def do_c(self, numbers, *_):
        self.path[-1] += [self.at(*numbers[i:i + 2]) for i in (0, 2, 4)]

    def do_h(self, *_):
        pass

    def do_re(self, numbers, *_):
        x, y, width, height = numbers
        self.path.append([self.at(x, y), self.at(x + width, y), self.at(x + width, y + height),
                          self.at(x, y + height)])

    def finish(self, kind, colour):
        scale = abs(self.state["ctm"][0])
        self.drawn.append(Path(kind, self.path, colour, self.state["alpha"],
                               self.state["width"] * scale))
        self.path = []

    def do_f(self, *_):
        self.finish("fill", self.state["fill"])

    do_f_star = do_f

    def do_S(self, *_):
        self.finish("stroke", self.state["stroke"])

    # Images

    def do_Do(self, *_):
        a, _, _, d, e, f = self.state["ctm"]
        self.drawn.append(Image(min(e, e + a), min(f, f + d), abs(a), abs(d)))

    # Text

    def do_BT(self, *_):
        self.matrix = (1, 0, 0, 1, 0, 0)

    def do_ET(self, *_):
        pass

    def do_Tf(self, numbers, names, *_):
        self.font, self.size = names[0], numbers[0]

    def do_Tm(self, numbers, *_):
        self.matrix = tuple(numbers)

    def do_Td(self, numbers, *_):
        self.matrix = times((1, 0, 0, 1, *numbers), self.matrix)

    def do_Tj(self, _, __, operands):
        whole = times(self.matrix, self.state["ctm"])
        codes = operands[0].strip(b"<>").decode()
        text = "".join(self.unicode(int(codes[i:i + 4], 16)) for i in range(0, len(codes), 4))
        x, baseline = apply(whole, 0, 0)
        origin = self.state["ctm"][4:]
        last = self.drawn[-1] if self.drawn else None
        if isinstance(last, Text) and last.origin == origin and last.baseline == baseline:
            last.text += text
            last.end = max(last.end, x)
            last.x = min(last.x, x)
            return
        fonts = self.file.value(self.resources["/Font"])
        name = self.file.value(fonts[self.font])["/BaseFont"].lstrip("/").split("+")[-1]
        self.drawn.append(Text(text, x, baseline, x, self.size * abs(whole[0]),
                               self.state["fill"], name))
        self.drawn[-1].origin = origin

    def unicode(self, code):
        if self.font not in self.maps:
            fonts = self.file.value(self.resources["/Font"])
            font = self.file.value(fonts[self.font])
            self.maps[self.font] = read_unicode_map(self.file.stream(font["/ToUnicode"]))
        return self.maps[self.font].get(code, "\0")


def read_unicode_map(data):
    text = data.decode("ascii")
    found = {}
    for section in re.findall(r"beginbfrange(.*?)endbfrange", text, re.S):
        for first, last, values in re.findall(r"<(\w+)> <(\w+)> (\[.*?\]|<\w+>)", section):
            codes = re.findall(r"<(\w+)>", values)
            for i in range(int(last, 16) - int(first, 16) + 1):
                value = codes[i] if i < len(codes) else None
                if value:
                    found[int(first, 16) + i] = bytes.fromhex(value).decode("utf-16-be")
    return found
