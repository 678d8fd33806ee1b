"""A desktop of its own for driving the program as a user would.

Desktop starts a virtual X server on a display number that the server picks
itself (so tests run side by side), at a given density, and, unless told
not to, the accessibility bus on the session bus that dbus-run-session gave
this test.
Program runs the program on that desktop; its window is read back through
AT-SPI (accessible names, and descriptions that hold each element's dotted
path) and through screenshots, and it gets real input from xdotool. There is
no window manager: closing the window as one would is a WM_DELETE_WINDOW
message sent here. Everything started is ended, also when a test fails.
"""

import os
import shutil
import signal
import subprocess
import tempfile
import time

from Xlib import X, Xatom, display as xdisplay, protocol


class Failure(Exception):
    """What a scenario found wrong."""


def wait_for(what, probe, timeout=10.0, interval=0.05):
    """Polls probe() until it gives something true, and returns that."""
    deadline = time.monotonic() + timeout
    while True:
        found = probe()
        if found:
            return found
        if time.monotonic() > deadline:
            raise Failure(f"timed out waiting for {what}")
        time.sleep(interval)


class Desktop:
    def __init__(self, dpi=96, size=(1280, 1024), accessibility=True, own_home=True):
        """`own_home` gives the programs a home and settings directories of
        their own, else they keep this process's."""
        self.dpi = dpi
        self.accessibility = accessibility
        self.own_home = own_home
        self.atspi = None
        self.size = size
        self.processes = []
        self.home = tempfile.mkdtemp(prefix="oxn-e2e-")

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *exc):
        self.close()

    def _start(self):
        read_end, write_end = os.pipe()
        width, height = self.size
        self._spawn(["Xvfb", "-displayfd", str(write_end), "-screen", "0",
                     f"{width}x{height}x24", "-dpi", str(self.dpi), "-nolisten", "tcp",
                     "-noreset"], pass_fds=(write_end,), stdout=subprocess.DEVNULL,
                    stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as announced:
            number = announced.readline().strip()
        if not number:
            raise Failure("Xvfb did not start")
        self.display_name = f":{number}"
        self.x = xdisplay.Display(self.display_name)
        self.set_density(self.dpi)
        if not self.accessibility:
            return
        self._spawn(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                    env=self.environment())
        # The accessibility library finds the bus through the session bus, so
        # it is loaded only now that the bus is there.
        import pyatspi
        self.atspi = pyatspi

    def set_density(self, dpi):
        """The density that programs started from now on find, as a desktop
        announces it: in the X resources, where Qt reads it."""
        self.dpi = dpi
        self.x.screen().root.change_property(self.x.intern_atom("RESOURCE_MANAGER"),
                                             Xatom.STRING, 8, f"Xft.dpi:\t{dpi}\n".encode())
        self.x.sync()

    def environment(self):
        env = {key: value for key, value in os.environ.items()
               if key not in ("LANGUAGE", "LC_ALL", "LC_MESSAGES", "QT_SCALE_FACTOR",
                              "QT_FONT_DPI", "QT_ENABLE_HIGHDPI_SCALING")}
        env.update({"DISPLAY": self.display_name, "XDG_RUNTIME_DIR": self.home,
                    "QT_QPA_PLATFORM": "xcb"})
        if self.own_home:
            env.update({
                "LANG": "C.UTF-8",
                "HOME": self.home,
                "XDG_CONFIG_HOME": os.path.join(self.home, "config"),
                "XDG_STATE_HOME": os.path.join(self.home, "state"),
            })
        if self.accessibility:
            env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        return env

    def _spawn(self, command, **options):
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, start_new_session=True,
                                   **options)
        self.processes.append(process)
        return process

    def launch(self, program, *arguments, env=None):
        """Starts the program on this desktop; Program reads and drives it."""
        environment = self.environment()
        environment.update(env or {})
        log = open(os.path.join(self.home, f"stderr-{len(self.processes)}.txt"), "w+")
        process = self._spawn([program, *arguments], env=environment,
                              stdout=subprocess.DEVNULL, stderr=log)
        return Program(self, process, log)

    def attach(self, process):
        """A Program for a process that the caller started on this desktop."""
        return Program(self, process, None)

    def windows(self):
        """The top-level windows that are mapped now, as Xlib windows."""
        children = self.x.screen().root.query_tree().children
        return [w for w in children if w.get_attributes().map_state == X.IsViewable]

    def key(self, *keys):
        self.xdotool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", "2", text)

    def click(self, x, y):
        self.xdotool("mousemove", "--sync", str(x), str(y), "click", "1")

    def xdotool(self, *arguments):
        subprocess.run(["xdotool", *arguments], check=True, env=self.environment(), timeout=20)

    def screenshot(self, path, window=None):
        """The window (the whole screen without one) as a PNG file."""
        target = "root" if window is None else hex(window.id)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        subprocess.run(["import", "-window", target, path], check=True,
                       env=self.environment(), timeout=30)

    def close(self):
        for process in reversed(self.processes):
            if process.poll() is None:
                try:
                    os.killpg(process.pid, signal.SIGTERM)
                except ProcessLookupError:
                    pass
        for process in reversed(self.processes):
            try:
                process.wait(timeout=5)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        self.processes.clear()
        shutil.rmtree(self.home, ignore_errors=True)


class Program:
    """The program running on a Desktop: its window, its accessible tree, its end."""

    def __init__(self, desktop, process, log):
        self.desktop = desktop
        self.process = process
        self.log = log
        self.atspi = desktop.atspi

    def stderr(self):
        if self.log is None:
            return "(on the caller's standard error)"
        self.log.flush()
        self.log.seek(0)
        return self.log.read()

    def wait_exit(self, timeout=10.0):
        try:
            return self.process.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            raise Failure(f"the program did not end; its errors:\n{self.stderr()}")

    def window(self, title=None, timeout=10.0):
        """The program's mapped top-level window (with `title`, if given)."""
        def mine():
            for window in self.desktop.windows():
                pid = window.get_full_property(self.desktop.x.intern_atom("_NET_WM_PID"),
                                               Xatom.CARDINAL)
                if not pid or pid.value[0] != self.process.pid:
                    continue
                if title is None or self.title_of(window) == title:
                    return window
            if self.process.poll() is not None:
                raise Failure(f"the program ended with {self.process.returncode}:\n"
                              f"{self.stderr()}")
            return None
        return wait_for(f"the window {title or ''}", mine, timeout)

    def title_of(self, window):
        name = window.get_full_property(self.desktop.x.intern_atom("_NET_WM_NAME"),
                                        self.desktop.x.intern_atom("UTF8_STRING"))
        return name.value.decode() if name else None

    def close_window(self, window):
        """What a window manager sends when the user closes the window."""
        x = self.desktop.x
        protocols = x.intern_atom("WM_PROTOCOLS")
        message = protocol.event.ClientMessage(
            window=window, client_type=protocols,
            data=(32, [x.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
        window.send_event(message)
        x.sync()

    def application(self, timeout=10.0):
        """The program's accessible application object."""
        def find():
            desktop = self.atspi.Registry.getDesktop(0)
            for index in range(desktop.childCount):
                application = desktop.getChildAtIndex(index)
                try:
                    if application and application.get_process_id() == self.process.pid:
                        return application
                except Exception:
                    continue
            return None
        return wait_for("the program on the accessibility bus", find, timeout)

    def element(self, path, timeout=10.0):
        """The accessible object of the element whose dotted path is or ends
        in `path`, once it shows."""
        def matches(node):
            description = node.description or ""
            return ((description == path or description.endswith("." + path))
                    and self.is_showing(node))
        return wait_for(f"element {path}",
                        lambda: self.atspi.findDescendant(self.application(), matches), timeout)

    def edit(self, path):
        """The text field of the edit at `path`, which stands beside its caption."""
        return self.part(path, self.atspi.ROLE_TEXT)

    def choice(self, path):
        """The drop-down list of the choice at `path`; its name is the chosen item."""
        return self.part(path, self.atspi.ROLE_COMBO_BOX)

    def part(self, path, role):
        return self.atspi.findDescendant(self.element(path), lambda node: node.getRole() == role)

    def rows(self, path):
        """The texts of a list's rows, as its text cells name them."""
        cells = self.atspi.findAllDescendants(
            self.element(path), lambda node: node.getRole() == self.atspi.ROLE_TABLE_CELL)
        return [cell.name for cell in cells if cell.name]

    def row(self, path, text):
        """The accessible cell of the list's row that shows `text`."""
        return wait_for(f"row {text} of {path}", lambda: self.atspi.findDescendant(
            self.element(path), lambda node: node.getRole() == self.atspi.ROLE_TABLE_CELL
            and node.name == text))

    def is_enabled(self, node):
        return node.getState().contains(self.atspi.STATE_ENABLED)

    def is_showing(self, node):
        return node.getState().contains(self.atspi.STATE_SHOWING)

    def extents(self, node):
        """(x, y, width, height) on the screen."""
        box = node.queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
        return (box.x, box.y, box.width, box.height)

    def click(self, node):
        x, y, width, height = self.extents(node)
        self.desktop.click(x + width // 2, y + height // 2)

    def text(self, node):
        """An edit's whole text."""
        text = node.queryText()
        return text.getText(0, -1)

    def selection(self, node):
        """(start, end) of an edit's selection, in characters, or None."""
        text = node.queryText()
        if text.getNSelections() == 0:
            return None
        return tuple(text.getSelection(0))
