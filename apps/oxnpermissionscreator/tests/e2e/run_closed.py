"""Runs the program as a user would and closes its window as soon as it shows.

    /usr/bin/python3 run_closed.py PROGRAM [ARGUMENT...]

The program runs on a virtual desktop of its own, with this process's
environment and output; its window is closed as a window manager closes it
(a WM_DELETE_WINDOW message). Ends with the program's exit code; a program
that ends without showing a window ends it too.
"""

import subprocess
import sys

from desktop import Desktop, Failure


def main():
    with Desktop(accessibility=False, own_home=False) as desktop:
        process = subprocess.Popen(sys.argv[1:], env=desktop.environment(),
                                   stdin=subprocess.DEVNULL)
        desktop.processes.append(process)
        program = desktop.attach(process)
        try:
            program.close_window(program.window())
        except Failure:
            if process.poll() is None:
                raise
        sys.exit(program.wait_exit())


if __name__ == "__main__":
    main()
