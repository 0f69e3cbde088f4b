"""That the makers of the ports fill in each of them: one that is forgotten compiles, and is null."""

import re

import build
import target

# Header of the bundle, and how its maker calls it.
BUNDLES = {"Platform.h": "platform", "Desktop.h": "desktop"}
MEMBER = re.compile(r"^\s*std::unique_ptr<\w+> (\w+);", re.MULTILINE)


def left_out(header, variable, sources):
    """The members of a bundle of ports that no source fills in."""
    return [name for name in MEMBER.findall(header)
            if not re.search(rf"\b{variable}->{name}\s*=", sources)]


def check():
    folder = target.ROOT / "src/platform"
    sources = "".join(path.read_text(encoding="utf-8") for path in sorted(build.MACOS.rglob("*.mm")))
    missing = [f"src/platform/{file}: nothing for macOS makes {name}"
               for file, variable in BUNDLES.items()
               for name in left_out((folder / file).read_text(encoding="utf-8"), variable, sources)]
    if missing:
        raise build.Failure("\n".join(missing))
