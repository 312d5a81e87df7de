#!/usr/bin/env python3
"""The desktop program on a real screen: what a user sees, and does with the keyboard.

    real_window_test.py FSV FSV_DUMP SOURCE_FOLDER PICTURE_FOLDER [TEST...]
"""

import os
import re
import subprocess
import sys
import tempfile
import unittest

from desktop_program import LANGUAGES, Home, Program, catalog
from x_screen import Screen, wait_for

FSV, FSV_DUMP, SOURCES, PICTURES = sys.argv[1:5]
WORDS = catalog(os.path.join(SOURCES, "src/base/catalog.tsv"))


def read(path):
    with open(path, "rb") as file:
        return file.read()


def dump(*arguments):
    run = subprocess.run([FSV_DUMP, *arguments], capture_output=True, check=False)
    return run.stdout.decode()


class Row:
    """A line of the tree as the batch tool prints it: level, caption, start byte (none: a folder)."""

    def __init__(self, line):
        caption, start = line.split("\t")[:2]
        self.text = caption.lstrip(" ")
        self.level = (len(caption) - len(self.text)) // 2
        self.start = int(start) if start else None


class RealWindow(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="window.")
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        # One bundled sample has pages and text, the other one faults.
        self.sample = os.path.join(self.folder, "sample.afp")
        with open(self.sample, "wb") as file:
            file.write(read(os.path.join(SOURCES, "samples/statement.afp")))
            file.write(read(os.path.join(SOURCES, "samples/damaged.afp")))
        self.rows = [Row(line) for line in dump("--tree", self.sample).splitlines()]
        self.pictures = 0

    def launch(self, name, language="en", screen=(1280, 900), dark=False, environment=None, **settings):
        self.name = name
        self.words = {english: texts[language] for english, texts in WORDS.items()}
        home = os.path.join(self.folder, name)
        os.mkdir(home)
        self.home = Home(home, Language=LANGUAGES[language], **settings)
        self.screen = Screen(*screen)
        self.addCleanup(self.screen.close)
        look = {**(self.home.be_dark() if dark else {}), **(environment or {})}
        self.program = Program(FSV, self.screen, self.home, [self.sample], look)
        self.addCleanup(self.program.close)

    def start(self, name, language="en", **options):
        self.launch(name, language, **options)
        self.opened()

    def opened(self):
        wait_for("the file's name in the title", lambda: self.sample in self.program.title())
        self.program.to_front()
        self.at_root()

    def quit(self):
        self.program.to_front()
        self.screen.keys("ctrl+q")
        self.assertEqual(self.program.end(), 0, self.program.said())
        self.assertEqual(self.program.said(), "")

    # ------------------------------------------------------------------------------------------------- what is seen

    def look(self, step):
        """The main window as it looks now; the screen is kept as a picture for people."""
        whole = self.screen.settled()
        self.pictures += 1
        whole.save(os.path.join(PICTURES, f"{self.name}-{self.pictures}-{step}.png"))
        return whole.part(*self.screen.place(self.program.window))

    def wait_for_news(self, part, before):
        """The part of the main window, when it isn't as before any more."""
        wait_for("another picture", lambda: part(self.now()) != part(before))
        self.screen.settled()
        return part(self.now())

    def now(self):
        return self.screen.picture().part(*self.screen.place(self.program.window))

    @staticmethod
    def tree_of(window):
        return window.part(0, window.height // 14, window.width * 28 // 100, window.height * 6 // 7)

    @staticmethod
    def texts_of(window):
        left = window.width * 2 // 5
        return window.part(left, window.height // 6, window.width - left - 20, window.height * 3 // 4)

    @staticmethod
    def menus_of(window):
        return window.part(0, 0, window.width // 2, window.height // 45)

    @staticmethod
    def bytes_of(window):
        return window.part(0, window.height * 4 // 5, window.width, window.height // 7)

    @staticmethod
    def pages_of(window):
        left = window.width * 3 // 4
        return window.part(left, window.height // 8, window.width - left, window.height * 2 // 3)

    def at_root(self):
        return self.program.properties(lambda text: self.sample in text.split("\n")[0])

    def at(self, row):
        """The text of a record, which tells by its start byte that it is this one."""
        def tells(text):
            head = text.split("\n")
            return len(head) > 1 and head[1].split("\t")[-1].split(" ")[0] == str(row.start)

        return self.program.properties(tells)

    def row(self, caption):
        return next(i for i, row in enumerate(self.rows) if row.text.startswith(caption))

    # ---------------------------------------------------------------------------------------------- what a user does

    def walk_by_keys(self):
        root = self.look("root")
        self.assertGreater(len(root.colours()), 20)
        self.screen.keys("Down")
        self.wait_for_news(self.tree_of, root)
        self.look("folder")
        self.screen.keys("Right", "Right")
        self.at(self.rows[self.row("BPF")])
        self.screen.keys("Home")
        self.at_root()

    def expand_and_type(self):
        closed = self.look("closed")
        self.screen.keys("Home", "ctrl+e", "End")
        last = max(i for i, row in enumerate(self.rows) if row.start)
        self.assertEqual(last, len(self.rows) - 1)
        self.at(self.rows[last])
        self.wait_for_news(self.tree_of, closed)
        self.look("expanded")
        steps = self.row("IMM")
        self.screen.keys("Home", *["Down"] * steps)
        self.at(self.rows[steps])
        self.screen.keys("Home")
        self.screen.write("tle")
        self.at(self.rows[self.row("TLE")])

    def new_window(self, what, *keys):
        """The window that comes when these keys are pressed, and those that were there before."""
        known = set(self.screen.windows(".*"))
        self.screen.keys(*keys)
        new = wait_for(what, lambda: set(self.screen.windows(".*")) - known)
        return new.pop(), known

    def leave(self, what, known):
        self.screen.keys("Escape")
        wait_for("the end of " + what, lambda: set(self.screen.windows(".*")) <= known)

    def open_menus(self):
        for menu in ("&File", "&Edit", "E&xtras", "&Windows", "&Help"):
            _, known = self.new_window("menu " + menu, "alt+" + self.key_of(menu))
            self.look("menu-" + menu.replace("&", "").lower())
            self.leave("menu " + menu, known)
            self.screen.keys("Escape")  # the first one leads back to the menu bar
        self.program.to_front()

    def read_help(self):
        window, known = self.new_window("the help", "F1")
        self.screen.focus(window)
        self.assertEqual(self.screen.title(window), self.help_title())
        self.look("help")
        self.leave("the help", known)
        self.program.to_front()

    def key_of(self, label):
        text = self.words[label]
        return text[text.index("&") + 1].lower()

    def help_title(self):
        with open(os.path.join(SOURCES, f"docs/help/help.{self.language()}.html"), encoding="utf-8") as file:
            return re.search("<title>(.*)</title>", file.read()).group(1)

    def find(self):
        """Each hit: a text that only a reading of the record's body brings, and no further one."""
        self.screen.keys("Home", "ctrl+f")
        dialog = self.program.wait_for_window(f"^{self.words['Find String']}$")
        self.screen.focus(dialog)
        self.look("find")
        self.screen.write("balance carried")
        self.screen.keys("Return")
        self.program.wait_till_gone(f"^{self.words['Find String']}$")
        self.program.to_front()
        hit = next(row for row in self.rows[self.row("Page 2"):] if row.text == "PTX")
        self.assertIn("Balance carried forward", self.at(hit))
        self.look("found")
        self.screen.keys("F3")
        box = self.program.wait_for_window("^Information$")
        self.screen.focus(box)
        self.look("no-more")
        self.screen.keys("Return")
        self.program.wait_till_gone("^Information$")
        self.program.to_front()
        self.at(hit)

    def read_messages(self):
        self.screen.keys("ctrl+m")
        window = self.program.wait_for_window(f"^{self.words['Messages']}$")
        self.screen.focus(window)
        self.look("messages")
        told = subprocess.run([FSV_DUMP, "--messages", "--language", self.language(), "-o", os.devnull, self.sample],
                              capture_output=True, check=False).stderr.decode().splitlines()
        descriptions = [line.split("\t")[-1].strip() for line in told]
        self.assertGreater(len(descriptions), 2)

        def copied():
            self.screen.keys("ctrl+a", "ctrl+c")
            return [line.split("\t")[-1].strip() for line in self.screen.clipboard().splitlines()] == descriptions

        wait_for("the messages on the clipboard", copied)
        self.screen.keys("Escape")
        self.program.wait_till_gone(f"^{self.words['Messages']}$")
        self.program.to_front()

    def language(self):
        return next(code for code, number in LANGUAGES.items() if number == self.home.settings()["Language"])

    def save_dump(self):
        self.screen.keys("ctrl+s")
        box = self.program.wait_for_window("^Information$")
        self.screen.focus(box)
        self.look("saved")
        self.screen.keys("Return")
        self.program.wait_till_gone("^Information$")
        self.program.to_front()
        expected = os.path.join(self.folder, "expected.txt")
        dump("--language", self.language(), "-o", expected, self.sample)
        self.assertEqual(read(self.sample + ".txt"), read(expected))
        self.assertGreater(len(read(expected)), 2000)
        self.keep_dump(read(expected))

    def keep_dump(self, content):
        """A second time it is asked whether the dump may go: it stays."""
        question, known = self.new_window("the question", "ctrl+s")
        self.assertEqual(self.screen.title(question), self.words["Question"])
        self.screen.focus(question)
        self.look("question")
        self.leave("the question", known)
        self.program.to_front()
        self.assertEqual(read(self.sample + ".txt"), content)

    def collapse(self):
        self.screen.keys("ctrl+shift+e", "End")
        self.at_root()

    def walk(self, name, language, **options):
        self.start(name, language, **options)
        self.walk_by_keys()
        self.open_menus()
        self.read_help()
        self.expand_and_type()
        self.find()
        self.read_messages()
        self.save_dump()
        self.collapse()
        self.quit()
        settings = self.home.settings()
        self.assertEqual(settings["LastFilesList1"], self.sample)
        self.assertEqual(settings["Language"], LANGUAGES[language])

    def in_options(self):
        """The dialog, with the list of the languages in hand."""
        dialog = self.program.wait_for_window("^Options$")
        self.screen.focus(dialog)
        self.screen.keys("Tab")
        return dialog

    def choose_language(self, language, *keys):
        """In the list, from English on: the words of all windows change at once."""
        self.screen.keys("ctrl+comma")
        dialog = self.in_options()
        before = self.look("options")
        self.screen.keys(*keys)
        self.wait_for_news(self.menus_of, before)
        self.look("options-" + language)
        self.assertEqual(self.screen.title(dialog), WORDS["Options"][language])
        return dialog, self.menus_of(before)

    def end_of_options(self, dialog, key):
        self.screen.keys(key)
        wait_for("the end of the options", lambda: dialog not in self.screen.windows(".*"))
        self.program.to_front()

    def record(self, steps):
        """Goes to a record from the root of the open tree; the bytes follow."""
        before = self.now()
        self.screen.keys("Home", *["Down"] * steps)
        self.at(self.rows[steps])
        return self.wait_for_news(self.bytes_of, before)

    def turn_the_page(self, shown):
        """In the pages: the tree follows to the end of the next one."""
        left, top, width, height = self.screen.place(self.program.window)
        self.screen.click(left + width * 5 // 6, top + height * 2 // 5)
        self.screen.keys("Next")
        self.wait_for_news(self.tree_of, shown)
        ends = [row for row in self.rows if row.text.startswith("EPG")]
        self.at(ends[1])
        self.look("next-page")

    # -------------------------------------------------------------------------------------------------------- tests

    def test_english(self):
        self.walk("english", "en")

    def test_german(self):
        self.walk("german", "de")

    def test_french(self):
        self.walk("french", "fr")

    def test_dark(self):
        self.start("light")
        light = self.look("root")
        self.quit()
        self.start("dark", "de", dark=True)
        dark = self.look("root")
        for part in (self.tree_of, self.texts_of):
            self.assertGreater(part(light).lightness(), 200)
            self.assertLess(part(dark).lightness(), 60)
        self.find()
        self.screen.keys("Home", "ctrl+e", "End")
        self.look("expanded")
        self.read_messages()
        self.quit()

    def row_height(self):
        """Of the tree, in pixels of the screen: the selection on its way down one row changes two of them."""
        self.screen.keys("Home")
        self.at_root()
        first = self.look("first-row")
        self.screen.keys("Down")
        changed = self.tree_of(first).changed_rows(self.wait_for_news(self.tree_of, first))
        return (changed[-1] - changed[0] + 1) / 2

    def test_scale(self):
        self.start("scale-1", "fr")
        single = self.row_height()
        self.quit()
        self.start("scale-2", "fr", screen=(2560, 1800), environment={"QT_SCALE_FACTOR": "2"})
        double = self.row_height()
        self.assertAlmostEqual(double / single, 2, delta=0.15)
        self.find()
        self.read_messages()
        self.quit()

    def test_first_start(self):
        self.launch("first-start", confirmed=False)
        dialog = self.in_options()
        self.assertNotIn(self.sample, self.program.title())
        self.assertNotIn("InitResourcePaths", self.home.settings())
        before = self.look("options")
        # The dialog is still there for the keys that come behind Escape.
        self.screen.keys("Escape", "ctrl+Tab", "shift+Tab", "ctrl+Tab")
        wait_for("the next page of the options", lambda: self.now() != before)
        self.look("code-pages")
        self.assertEqual(self.screen.windows("^Options$"), [dialog])
        self.assertNotIn("InitResourcePaths", self.home.settings())
        self.screen.keys("Return")
        self.program.wait_till_gone("^Options$")
        self.opened()
        self.look("opened")
        settings = self.home.settings()
        expected = {"InitResourcePaths": 1, "Language": 1, "TechnicalEnglish": 0, "Codepage": 37, "CodepageNOP": 37,
                    "CodepageTLE": 37, "NormalLineWidth": 1, "DefaultMeasurement": 0}
        self.assertEqual({name: settings.get(name) for name in expected}, expected)
        self.quit()
        self.assertEqual(self.home.settings()["LastFilesList1"], self.sample)

    def test_options(self):
        self.start("options")
        dialog, english = self.choose_language("de", "Down")
        self.end_of_options(dialog, "Escape")
        wait_for("the English words", lambda: self.menus_of(self.now()) == english)
        self.assertEqual(self.home.settings()["Language"], 1)
        dialog, _ = self.choose_language("fr", "Down", "Down")
        self.end_of_options(dialog, "Return")
        self.assertNotEqual(self.menus_of(self.now()), english)
        self.assertEqual(self.home.settings()["Language"], 3)
        self.words = {text: texts["fr"] for text, texts in WORDS.items()}
        self.open_menus()
        self.read_help()
        self.quit()
        self.assertEqual(self.home.settings()["Language"], 3)

    def test_viewers(self):
        self.start("viewers", HexViewer=1, UsePreviewWindow=1)
        self.look("root")
        self.screen.keys("ctrl+e", "End")
        self.at(self.rows[-1])
        name = self.record(self.row("BNG"))
        text = self.record(self.row("PTX"))
        self.assertNotEqual(name, text)
        self.assertTrue(any(red > 200 > 100 > max(blue, green) for blue, green, red in text.colours()))
        shown = self.look("record")
        self.assertGreater(self.pages_of(shown).lightness(), 250)
        self.screen.keys("F4")
        self.wait_for_news(self.pages_of, shown)
        self.look("without-pages")
        self.screen.keys("F4")
        wait_for("the page as before", lambda: self.pages_of(self.now()) == self.pages_of(shown))
        self.turn_the_page(shown)
        self.quit()


if __name__ == "__main__":
    os.makedirs(PICTURES, exist_ok=True)
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]], verbosity=2)
