#!/usr/bin/env python3
"""Fails on an include that crosses the layers: prints each one and exits 1.

A module includes itself and the modules below it, a room of a module itself and the rooms below it. A model reaches
no view, directly or through other headers: a view is a header that declares a widget, or Qt's own, and a model is
whatever is neither a view nor named as showing views.
"""

import os
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BELOW = {
    "Platform": set(),
    "Chorale": {"Platform"},
    "VantorShaders": {"Platform"},
    "Tidepool": {"Platform"},
    "Noteloft": {"Platform", "Chorale", "VantorShaders", "Tidepool"},
    "Plugin": set(),
    "Gallery": {"Platform", "Chorale", "VantorShaders", "Tidepool"},
}
# Processing code runs in a host's audio thread and stands alone; the editor beside it may use the modules.
BELOW_FOLDER = {"Plugin/Editor": {"Platform", "Chorale", "Tidepool"}}
# The rooms of a module from the bottom up.
ROOMS = {
    "Platform": ["Core", "Formatters", "Graphics", "Gpu", "Publishing", "Display", "Controls", "Text", "Windows",
                 "AudioUnits", "Updates"],
    "Tidepool": ["Palette", "Formatters", "Styles", "Events", "Menus", "Buttons", "Choices", "Views", "Text", "Windows"],
}
# Implementations for one operating system serve every room.
BESIDE_THE_ROOMS = {"Platform/Linux"}
# Neither models nor views: what brings views up, looks into them or works for them. Folders and names without endings.
SHOWS_VIEWS = """
    Platform/Controls Platform/Text Platform/Windows Platform/Linux Platform/Core/Action Platform/Core/Environment
    Platform/Display/DisplayPump Platform/Graphics/Appearance Platform/Updates/SPUStandardUserDriver
    Chorale/ParameterAccessibility Chorale/ParameterView Chorale/RocketFontModifier
    VantorShaders/MetalShaderRenderer VantorShaders/MetalShaderViewController
    Tidepool/Buttons Tidepool/Text Tidepool/Events Tidepool/Menus Tidepool/Views Tidepool/Windows Tidepool/Styles/StyleSet
    Tidepool/Styles/Validating Tidepool/Choices/Segment Tidepool/Choices/SegmentAnnouncements
    Tidepool/Choices/SegmentInterface Tidepool/Choices/SegmentedButtonStyle Tidepool/Choices/SegmentedCell
    Tidepool/Choices/StyledComboBoxCell Tidepool/Choices/StyledMenuButtonCell Tidepool/Choices/StyledSegmentedCell Tidepool/Choices/StyledSegmentedControlAccessibility
    Tidepool/Choices/StyledSegmentedControlInput
    Noteloft/InterFontModifier Noteloft/NoteloftApp Noteloft/main
    Plugin/Editor/EmbeddedAccessibility Plugin/Editor/EmbeddedEditor Plugin/Editor/HostKeyboard
    Plugin/Editor/UiDescriptor
    Gallery/AllPages Gallery/Layout Gallery/PagePicture Gallery/Pages Gallery/Window Gallery/main
""".split()
QT_WIDGETS = set("""
    QWidget QAbstractButton QAbstractItemView QAbstractScrollArea QAbstractSlider QAbstractSpinBox QCheckBox QComboBox
    QDial QDialog QFrame QGraphicsView QGroupBox QHeaderView QLabel QLineEdit QListView QListWidget QMainWindow QMenu
    QMenuBar QMessageBox QOpenGLWidget QPlainTextEdit QProgressBar QPushButton QRadioButton QScrollArea QSlider QSpinBox
    QSplitter QStackedWidget QTabWidget QTableView QTableWidget QTextEdit QToolBar QToolButton QTreeView QTreeWidget
""".split())
INCLUDE = re.compile(r'^\s*#\s*include\s*["<](?P<path>[^">]+)[">]', re.MULTILINE)
CLASS = re.compile(r"\b(?:class|struct)\s+(?P<name>\w+)(?:\s+final)?\s*:(?P<bases>[^{;]+)\{")


def includes(source, text, texts):
    """What a file includes, the project's own as paths from the root: the compiler looks beside the file first."""
    for match in INCLUDE.finditer(text):
        beside = Path(os.path.normpath(source.parent / match["path"]))
        yield beside if beside in texts else Path(os.path.normpath(match["path"]))


def views(texts):
    """The headers that declare a widget, Qt's own included."""
    classes = [(path, match["name"], set(re.findall(r"\w+", match["bases"])))
               for path, text in texts.items() for match in CLASS.finditer(text)]
    widgets = set(QT_WIDGETS)
    known = 0
    while known < len(widgets):
        known = len(widgets)
        widgets |= {name for _, name, bases in classes if bases & widgets}
    declaring = {path for path, name, _ in classes if path.suffix == ".h" and name in widgets}
    return declaring | {Path(name) for name in QT_WIDGETS}


def is_model(source, all_views):
    shows_views = any(source.with_suffix("").is_relative_to(name) for name in SHOWS_VIEWS)
    return not shows_views and source.with_suffix(".h") not in all_views


def way_to_view(source, graph, all_views):
    """The shortest row of includes from a file to a view; none if it reaches none."""
    ways = [[source]]
    seen = {source}
    for way in ways:
        if way[-1] in all_views:
            return way
        for included in graph.get(way[-1], ()):
            if included not in seen:
                seen.add(included)
                ways.append([*way, included])
    return None


def allowed(source):
    for folder, modules in BELOW_FOLDER.items():
        if source.is_relative_to(folder):
            return modules | {source.parts[0]}
    return BELOW[source.parts[0]] | {source.parts[0]}


def room(path):
    """The module's rooms and the place of the file's own among them; none where there are no rooms."""
    rooms = ROOMS.get(path.parts[0])
    if rooms is None or str(path.parent) in BESIDE_THE_ROOMS:
        return None
    return path.parts[0], rooms.index(path.parts[1]) if path.parts[1] in rooms else -1


def room_is_above(source, included):
    own, other = room(source), room(included)
    return own is not None and other is not None and own[0] == other[0] and other[1] > own[1]


def violations(root):
    files = [p for module in BELOW for p in (root / module).rglob("*") if p.suffix in (".h", ".cpp")]
    texts = {path.relative_to(root): path.read_text(encoding="utf-8") for path in sorted(files)}
    graph = {path: list(includes(path, text, texts)) for path, text in texts.items()}
    all_views = views(texts)
    for source, included_files in graph.items():
        if room(source) is not None and room(source)[1] < 0:
            yield f"{source}: {source.parts[1]} is no room of {source.parts[0]}"
        for included in included_files:
            if included.parts[0] in BELOW and included.parts[0] not in allowed(source):
                yield f"{source}: {included.parts[0]} is not below {source.parts[0]}: {included}"
            elif room_is_above(source, included):
                yield f"{source}: {included.parts[1]} is above {source.parts[1]}: {included}"
        way = way_to_view(source, graph, all_views) if is_model(source, all_views) else None
        if way and (len(way) == 2 or not is_model(way[1], all_views)):  # else that model's is the finding
            yield f"{source}: a model reaches a view: {' -> '.join(map(str, way[1:]))}"


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    found = list(violations(root))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
