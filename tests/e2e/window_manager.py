"""What only a window manager does to windows, on a display without one."""

import ctypes
import ctypes.util

CLIENT_MESSAGE = 33  # the event's type, by the X protocol


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("room", ctypes.c_long * 24)]


def ask_to_close(display_name, window):
    """As the close button of a frame does: the program decides what becomes of it."""
    x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XInternAtom.restype = ctypes.c_ulong
    x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long,
                               ctypes.c_void_p]
    x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
    display = x11.XOpenDisplay(display_name.encode())
    if not display:
        raise AssertionError(f"no display {display_name}")
    message = ClientMessage(type=CLIENT_MESSAGE, window=int(window), format=32,
                            message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", 0))
    message.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x11.XSendEvent(display, int(window), 0, 0, ctypes.byref(message))
    x11.XCloseDisplay(display)
