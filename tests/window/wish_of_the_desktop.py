# SPDX-License-Identifier: GPL-3.0-or-later
# The desktop says dark and the program is dark; it changes its mind and the program follows at once.
# What the teacher chooses in the menu holds against the desktop, and in the next run too.
import subprocess
import threading

from gi.repository import Gio, GLib
from support import story
from support.program import Failure, wait_for, xdotool

DARK, LIGHT = 1, 2
SETTINGS = """<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="v" direction="out"/></method>
  <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
</interface></node>"""
PATH, ROOM, KEY = "/org/freedesktop/portal/desktop", "org.freedesktop.appearance", "color-scheme"


class Desktop:
    """The portal of a desktop, with one setting."""

    def __init__(self, wish):
        self.wish = wish
        self.asked = 0
        self.ready = threading.Event()
        threading.Thread(target=self.run, daemon=True).start()
        if not self.ready.wait(20):
            raise Failure("the portal did not come up")

    def run(self):
        context = GLib.MainContext()
        context.push_thread_default()
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(SETTINGS).interfaces[0]
        self.bus.register_object(PATH, interface, self.called, None, None)
        Gio.bus_own_name_on_connection(self.bus, "org.freedesktop.portal.Desktop",
                                       Gio.BusNameOwnerFlags.NONE, lambda *_: self.ready.set(), None)
        GLib.MainLoop(context).run()

    def called(self, _bus, _sender, _path, _interface, _method, parameters, call):
        if parameters.unpack() == (ROOM, KEY):
            self.asked += 1
            call.return_value(GLib.Variant("(v)", (GLib.Variant("v", GLib.Variant("u", self.wish)),)))
        else:
            call.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def change(self, wish):
        self.wish = wish
        self.bus.emit_signal(None, PATH, "org.freedesktop.portal.Settings", "SettingChanged",
                             GLib.Variant("(ssv)", (ROOM, KEY, GLib.Variant("u", wish))))


def lightness():
    """Of the lower left corner of the window in front, 0 to 255: the ground of its status bar."""
    window = xdotool("getactivewindow")
    shot = subprocess.run(["import", "-window", window, "-gravity", "SouthWest", "-crop", "4x4+1+1",
                           "-resize", "1x1!", "-colorspace", "Gray", "-depth", "8", "gray:-"],
                          capture_output=True, timeout=20, check=True).stdout
    return shot[0]


def await_dark(what):
    wait_for(what, lambda: lightness() < 80)


def await_light(what):
    wait_for(what, lambda: lightness() > 180)


def tell(this):
    desktop = Desktop(DARK)
    program = this.start(this.sample("SAMPLE8.TYR"))
    program.frame("SAMPLE8.TYR")
    await_dark("a dark window on a dark desktop")
    if desktop.asked != 1:
        raise Failure(f"the desktop was asked {desktop.asked} times")
    desktop.change(LIGHT)
    await_light("the window to follow")
    program.keys("alt+v", "p", "k")
    await_dark("the window to become dark by the menu")
    desktop.change(DARK)
    desktop.change(LIGHT)
    program.keys("ctrl+q")
    program.ended()
    program = this.start(this.path("SAMPLE8.TYR"))
    program.frame("SAMPLE8.TYR")
    await_dark("the choice to be kept")
    program.keys("alt+v", "p", "d")
    await_light("the desktop's wish to count again")
    program.keys("ctrl+q")
    program.ended()


story.run(tell)
