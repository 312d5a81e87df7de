"""An X server of one's own: what it shows, its keys, its windows and its clipboard."""

import os
import re
import struct
import subprocess
import tempfile
import time
import zlib

# A machine that does much else, and a program under the sanitizers, take their time.
PATIENCE = 60  # seconds


def wait_for(what, condition):
    """What the condition gives, as soon as it isn't false."""
    end = time.monotonic() + PATIENCE
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"waited {PATIENCE} s in vain: {what}")
        time.sleep(0.02)


class Picture:
    """Rows of pixels of four bytes: blue, green, red, none."""

    def __init__(self, rows):
        self.rows = rows
        self.height = len(rows)
        self.width = len(rows[0]) // 4 if rows else 0

    def part(self, left, top, width, height):
        return Picture([row[left * 4:(left + width) * 4] for row in self.rows[top:top + height]])

    def __eq__(self, other):
        return self.rows == other.rows

    def changed_rows(self, other):
        """The numbers of the rows in which two pictures of the same size differ."""
        return [y for y, (one, another) in enumerate(zip(self.rows, other.rows)) if one != another]

    def colours(self):
        return {row[x:x + 3] for row in self.rows[::3] for x in range(0, len(row), 4)}

    def lightness(self):
        """Of the middle one of the pixels, 0 to 255: that is the ground on which the rest stands."""
        levels = sorted(sum(row[x:x + 3]) // 3 for row in self.rows[::5] for x in range(0, len(row), 20))
        return levels[len(levels) // 2]

    def save(self, path):
        lines = bytearray()
        for row in self.rows:
            line = bytearray(3 * self.width)
            line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
            lines += b"\0" + line

        def chunk(name, data):
            return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(bytes(lines), 3)) +
                       chunk(b"IEND", b""))


class Screen:
    """An X server that draws into a file, on the first display number that is free."""

    def __init__(self, width, height):
        self.folder = tempfile.TemporaryDirectory(prefix="screen.")
        reader, writer = os.pipe()
        # A server that begins anew when its last client goes turns away whoever comes at that moment.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-fbdir", self.folder.name, "-nolisten", "tcp", "-noreset",
             "-screen", "0", f"{width}x{height}x24"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise AssertionError("Xvfb doesn't start")
        self.name = ":" + number
        self.environment = dict(os.environ, DISPLAY=self.name)

    def close(self):
        self.server.terminate()
        self.server.wait(PATIENCE)
        self.folder.cleanup()

    def picture(self):
        with open(os.path.join(self.folder.name, "Xvfb_screen0"), "rb") as file:
            data = file.read()
        head = struct.unpack(">25I", data[:100])  # the header of an XWD file
        size, width, height, line, colours = head[0], head[4], head[5], head[12], head[19]
        if head[11] != 32:
            raise AssertionError(f"{head[11]} bits a pixel")
        start = size + 12 * colours
        return Picture([data[start + y * line:start + y * line + 4 * width] for y in range(height)])

    def settled(self):
        """The picture, once nothing has moved for a moment."""
        last = [self.picture()]

        def still():
            time.sleep(0.1)
            before, last[0] = last[0], self.picture()
            return before == last[0]

        wait_for("a picture that stands still", still)
        return last[0]

    def tool(self, *command, data=None):
        return subprocess.run(command, env=self.environment, input=data, capture_output=True, text=True,
                              timeout=PATIENCE, check=False)

    def windows(self, title):
        """The visible windows whose titles match."""
        return [int(line) for line in self.tool("xdotool", "search", "--onlyvisible", "--name", title).stdout.split()]

    def title(self, window):
        return self.tool("xdotool", "getwindowname", str(window)).stdout.rstrip("\n")

    def place(self, window):
        """Left, top, width, height in pixels of the screen."""
        geometry = self.tool("xdotool", "getwindowgeometry", "--shell", str(window)).stdout
        told = dict(re.findall(r"(\w+)=(-?\d+)", geometry))
        return tuple(int(told[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def focus(self, window):
        self.tool("xdotool", "windowraise", str(window))

        def focused():
            self.tool("xdotool", "windowfocus", str(window))
            return self.tool("xdotool", "getwindowfocus", "-f").stdout.strip() == str(window)

        wait_for("the focus", focused)

    def keys(self, *names):
        """What a keyboard sends, to whoever has the focus."""
        self.tool("xdotool", "key", "--delay", "1", *names)

    def write(self, text):
        self.tool("xdotool", "type", "--delay", "1", text)

    def click(self, x, y):
        self.tool("xdotool", "mousemove", str(x), str(y), "click", "1")

    def clipboard(self):
        return self.tool("xclip", "-o", "-selection", "clipboard").stdout
