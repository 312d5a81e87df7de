"""The desktop program with a home of its own, and what a user does with it."""

import os
import subprocess

from x_screen import PATIENCE, wait_for

SETTINGS = r"HKEY_CURRENT_USER\Software\Marrowgate\Folioscope"
LEAKS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "leaks.supp")
LANGUAGES = {"en": 1, "de": 2, "fr": 3}
# How a desktop with dark colours asks for them.
DARK = """[Colors:Window]
BackgroundNormal=45,45,45
ForegroundNormal=230,230,230
[Colors:View]
BackgroundNormal=30,30,30
BackgroundAlternate=38,38,38
ForegroundNormal=230,230,230
ForegroundLink=120,170,255
ForegroundVisited=190,150,255
[Colors:Button]
BackgroundNormal=55,55,55
ForegroundNormal=230,230,230
[Colors:Selection]
BackgroundNormal=40,100,160
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=60,60,60
ForegroundNormal=230,230,230
"""


def catalog(path):
    """The words of the interface: from the English ones to those of each language."""
    words = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            _, scope, *texts = line.rstrip("\n").split("\t")
            if scope == "interface":
                words[texts[0]] = dict(zip(LANGUAGES, texts))
    return words


class Home:
    """Where a user's files lie, the settings store among them; there is none before its first start is confirmed."""

    def __init__(self, folder, confirmed=True, **settings):
        self.folder = folder
        self.store = os.path.join(folder, "config", "Marrowgate", "registry.ini")
        os.makedirs(os.path.dirname(self.store))
        os.makedirs(os.path.join(folder, "run"), mode=0o700)
        values = {"InitResourcePaths": 1, "Codepage": 37, "TechnicalEnglish": 0, "MessageWindow": 0, "HexViewer": 0,
                  "UsePreviewWindow": 0, **settings}
        if not confirmed:
            return
        with open(self.store, "w", encoding="utf-8") as file:
            file.write(f"[{SETTINGS}]\n")
            file.writelines(f"{name}=dword:{number}\n" for name, number in values.items())

    def be_dark(self):
        with open(os.path.join(self.folder, "config", "kdeglobals"), "w", encoding="utf-8") as file:
            file.write(DARK)
        # Without a message bus Qt says that it won't hear of changes.
        return {"QT_QPA_PLATFORMTHEME": "kde", "KDE_SESSION_VERSION": "5", "XDG_CURRENT_DESKTOP": "KDE",
                "QT_LOGGING_RULES": "qt.qpa.theme.dbus=false"}

    def settings(self):
        """What stands in the store, by name; each line must be one that the store's form knows."""
        with open(self.store, encoding="utf-8") as file:
            head, *lines = file.read().splitlines()
        assert head == f"[{SETTINGS}]", head
        values = {}
        for line in lines:
            name, data = line.split("=", 1)
            kind, value = data.split(":", 1)
            assert kind in ("dword", "sz"), line
            values[name] = int(value) if kind == "dword" else value
        return values

    def environment(self, screen):
        kept = {name: value for name, value in os.environ.items()
                if name in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS")}
        return {**kept, "HOME": self.folder, "DISPLAY": screen.name, "LC_ALL": "C.UTF-8",
                "XDG_CONFIG_HOME": os.path.join(self.folder, "config"), "XDG_CONFIG_DIRS": "/nowhere",
                "XDG_DATA_HOME": os.path.join(self.folder, "data"), "XDG_RUNTIME_DIR": os.path.join(self.folder, "run"),
                "XDG_CACHE_HOME": os.path.join(self.folder, "cache"), "QT_QPA_PLATFORM": "xcb",
                "LSAN_OPTIONS": f"print_suppressions=0:suppressions={LEAKS}"}


class Program:
    """The running program and its main window."""

    def __init__(self, binary, screen, home, arguments, environment=None, **options):
        self.screen = screen
        self.errors = os.path.join(home.folder, "errors")
        with open(self.errors, "w", encoding="utf-8") as errors:
            self.process = subprocess.Popen([binary, *arguments], cwd=home.folder, stdout=errors, stderr=errors,
                                            env={**home.environment(screen), **(environment or {})}, **options)
        self.window = self.wait_for_window("^Folioscope")

    def wait_for_window(self, title):
        def there():
            if self.process.poll() is not None:
                raise AssertionError(f"ended with {self.process.returncode}: {self.said()}")
            return self.screen.windows(title)

        return wait_for(f"a window {title}", there)[0]

    def wait_till_gone(self, title):
        wait_for(f"the end of the window {title}", lambda: not self.screen.windows(title))

    def title(self):
        return self.screen.title(self.window)

    def to_front(self):
        self.screen.focus(self.window)

    def properties(self, expected):
        """Copies the text of the properties until it is what is expected. The focus is in the tree afterwards."""
        last = [""]
        left, top, width, height = self.screen.place(self.window)

        def copied():
            # At the end of a run the tree takes the focus, wherever Tab has led meanwhile.
            self.screen.click(left + width // 2, top + height * 7 // 10)
            self.screen.keys("ctrl+a", "ctrl+c", "shift+Tab")
            last[0] = self.screen.clipboard()
            return expected(last[0])

        try:
            wait_for("a property text", copied)
        except AssertionError as error:
            raise AssertionError(f"{error}; the last text was {last[0]!r}") from None
        return last[0]

    def said(self):
        with open(self.errors, encoding="utf-8", errors="replace") as file:
            return file.read()

    def end(self):
        """The exit status, which the program has to come to by itself."""
        return self.process.wait(PATIENCE)

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
