"""The lists of mutants: reading them, and applying a mutant to a text."""

import dataclasses
import pathlib
import typing


class ListError(Exception):
    """A list that does not say what it has to, or no longer fits the sources."""


@dataclasses.dataclass
class Hunk:
    file: str
    find: str
    put: str


@dataclasses.dataclass
class Mutant:
    room: str
    name: str
    rule: str = ""
    unseen: str = ""
    hunks: typing.List[Hunk] = dataclasses.field(default_factory=list)


def read_lists(folder):
    """All mutants, a room a file."""
    mutants = []
    for path in sorted(pathlib.Path(folder).glob("*.txt")):
        mutants += read_list(path.stem, path.read_text(encoding="utf-8"))
    names = [mutant.name for mutant in mutants]
    twice = sorted({name for name in names if names.count(name) > 1})
    if twice:
        raise ListError("two mutants of one name: " + ", ".join(twice))
    return mutants


def read_list(room, text):
    mutants = []
    for number, line in enumerate(text.splitlines(), 1):
        try:
            read_line(room, line, mutants)
        except (ListError, IndexError):
            raise ListError(f"{room}.txt, line {number}: '{line}' is not understood here") from None
    for mutant in mutants:
        if not mutant.rule or not mutant.hunks:
            raise ListError(f"{room}.txt: {mutant.name} lacks its rule or its change")
    return mutants


def read_line(room, line, mutants):
    word, _, rest = line.partition(" ")
    if not line or line.startswith("#"):
        return
    if line[0] in "-+ ":
        hunk = mutants[-1].hunks[-1]
        hunk.find += line[1:] + "\n" if line[0] != "+" else ""
        hunk.put += line[1:] + "\n" if line[0] != "-" else ""
    elif word == "mutant":
        mutants.append(Mutant(room, rest.strip()))
    elif word == "in":
        mutants[-1].hunks.append(Hunk(rest.strip(), "", ""))
    elif word == "rule":
        mutants[-1].rule += rest.strip()
    elif word == "unseen":
        mutants[-1].unseen += rest.strip()
    else:
        raise ListError()


def apply(mutant, sources):
    """The texts of the files that the mutant changes, by name; `sources` gives the text of a file."""
    changed = {}
    for hunk in mutant.hunks:
        text = changed.get(hunk.file) or sources(hunk.file)
        changed[hunk.file] = replace_once(mutant, hunk, text)
    return changed


def replace_once(mutant, hunk, text):
    """White space does not count, so that formatting the sources anew leaves the mutants valid."""
    places = [place for place, character in enumerate(text) if not character.isspace()]
    squeezed = "".join(text[place] for place in places)
    wanted = "".join(hunk.find.split())
    first = squeezed.find(wanted)
    if not wanted or first < 0 or squeezed.find(wanted, first + 1) >= 0:
        how = "is not in" if first < 0 else "is not in just one place of"
        raise ListError(f"{mutant.room}/{mutant.name}: this {how} {hunk.file}:\n{hunk.find}")
    end = places[first + len(wanted) - 1] + 1
    return text[:places[first]] + hunk.put.strip() + text[end:]
