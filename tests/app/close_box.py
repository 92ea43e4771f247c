#!/usr/bin/env python3
"""Asks an X window to close as its close box does: a WM_DELETE_WINDOW
client message, sent with Xlib through ctypes (no window manager needed)."""
import ctypes
import sys

xlib = ctypes.cdll.LoadLibrary("libX11.so.6")
xlib.XOpenDisplay.restype = ctypes.c_void_p
xlib.XOpenDisplay.argtypes = [ctypes.c_char_p]
xlib.XInternAtom.restype = ctypes.c_ulong
xlib.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
xlib.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
xlib.XFlush.argtypes = [ctypes.c_void_p]
xlib.XCloseDisplay.argtypes = [ctypes.c_void_p]


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("client", ClientMessage), ("pad", ctypes.c_long * 24)]


CLIENT_MESSAGE = 33
window = int(sys.argv[1], 0)
display = xlib.XOpenDisplay(None)
if not display:
    sys.exit("no X display")
event = Event()
event.client.type = CLIENT_MESSAGE
event.client.window = window
event.client.message_type = xlib.XInternAtom(display, b"WM_PROTOCOLS", 0)
event.client.format = 32
event.client.data[0] = xlib.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
event.client.data[1] = 0  # CurrentTime
xlib.XSendEvent(display, window, 0, 0, ctypes.byref(event))
xlib.XFlush(display)
xlib.XCloseDisplay(display)
