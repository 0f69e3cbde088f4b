"""What only a window manager does to windows, on a display without one."""

import ctypes
import ctypes.util

CLIENT_MESSAGE = 33  # the event's type, by the X protocol


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("room", ctypes.c_long * 24)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("message", ClientMessage), ("room", ctypes.c_long * 24)]


def library():
    x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
    pointer = ctypes.c_void_p
    for name, result, arguments in (
            ("XOpenDisplay", pointer, [ctypes.c_char_p]),
            ("XInternAtom", ctypes.c_ulong, [pointer, ctypes.c_char_p, ctypes.c_int]),
            ("XSendEvent", ctypes.c_int, [pointer, ctypes.c_ulong, ctypes.c_int, ctypes.c_long,
                                          pointer]),
            ("XDefaultRootWindow", ctypes.c_ulong, [pointer]),
            ("XSelectInput", ctypes.c_int, [pointer, ctypes.c_ulong, ctypes.c_long]),
            ("XPending", ctypes.c_int, [pointer]),
            ("XNextEvent", ctypes.c_int, [pointer, pointer]),
            ("XSync", ctypes.c_int, [pointer, ctypes.c_int]),
            ("XCloseDisplay", ctypes.c_int, [pointer])):
        function = getattr(x11, name)
        function.restype, function.argtypes = result, arguments
    return x11


def open_display(x11, name):
    display = x11.XOpenDisplay(name.encode())
    if not display:
        raise AssertionError(f"no display {name}")
    return display


class Desk:
    """Hears what windows ask of a desktop: to be activated, and that a start is complete. Closed at
    the end."""

    SUBSTRUCTURE_NOTIFY = 1 << 19
    PROPERTY_CHANGE = 1 << 22

    def __init__(self, display_name):
        self.x11 = library()
        self.display = open_display(self.x11, display_name)
        self.atoms = {self.x11.XInternAtom(self.display, name, 0): name.decode() for name in (
            b"_NET_ACTIVE_WINDOW", b"_NET_STARTUP_INFO_BEGIN", b"_NET_STARTUP_INFO")}
        self.x11.XSelectInput(self.display, self.x11.XDefaultRootWindow(self.display),
                              self.SUBSTRUCTURE_NOTIFY | self.PROPERTY_CHANGE)
        self.x11.XSync(self.display, 0)
        self.activations = []  # window and time of each request
        self.startup_messages = []

    def listen(self):
        """Takes what has arrived, and gives itself."""
        event = Event()
        while self.x11.XPending(self.display):
            self.x11.XNextEvent(self.display, ctypes.byref(event))
            if event.type == CLIENT_MESSAGE:
                self.take(event.message)
        return self

    def take(self, message):
        name = self.atoms.get(message.message_type)
        if name == "_NET_ACTIVE_WINDOW":
            self.activations.append((message.window, message.data[1]))
        elif name:
            if name.endswith("BEGIN"):
                self.startup_messages.append(b"")
            self.startup_messages[-1] += ctypes.string_at(ctypes.byref(message.data), 20)

    def ended_startups(self):
        """What each complete message of that kind says."""
        texts = [text.split(b"\0", 1)[0] for text in self.listen().startup_messages if b"\0" in text]
        return [text.decode() for text in texts if text.startswith(b"remove:")]

    def close(self):
        self.x11.XCloseDisplay(self.display)


def ask_to_close(display_name, window):
    """As the close button of a frame does: the program decides what becomes of it."""
    x11 = library()
    display = open_display(x11, display_name)
    message = ClientMessage(type=CLIENT_MESSAGE, window=int(window), format=32,
                            message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", 0))
    message.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x11.XSendEvent(display, int(window), 0, 0, ctypes.byref(message))
    x11.XCloseDisplay(display)
