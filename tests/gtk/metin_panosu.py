"""Owns the clipboard with a text, as a toolkit's application does (every text type), until
it is ended. Usage: metin_panosu.py TEXT"""
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).set_text(sys.argv[1], -1)
Gtk.main()
