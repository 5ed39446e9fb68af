#!/usr/bin/env python3
"""A small loopback web server for the demo and the tests.

Serves files from a folder; any other path gets index.html (a single-page application's
routes, such as /home). GET /olay?... records a beacon from the page (answered 204) and
appends it as a JSON line to --olaylar when given. Listens on 127.0.0.1 only.
"""
import argparse
import json
import mimetypes
import os
import sys
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import parse_qsl, urlsplit

mimetypes.add_type("application/xhtml+xml", ".xhtml")


class Sunucu(ThreadingHTTPServer):
    daemon_threads = True
    allow_reuse_address = True

    def __init__(self, kok, port=0, olay_dosyasi=None):
        self.kok = os.path.abspath(kok)
        self.olay_dosyasi = olay_dosyasi
        self.olaylar = []
        self.kosul = threading.Condition()
        super().__init__(("127.0.0.1", port), Isleyici)

    @property
    def adres(self):
        return "http://127.0.0.1:%d" % self.server_address[1]

    def olay_ekle(self, olay):
        with self.kosul:
            self.olaylar.append(olay)
            self.kosul.notify_all()
        if self.olay_dosyasi:
            with open(self.olay_dosyasi, "a", encoding="utf-8") as f:
                f.write(json.dumps(olay, ensure_ascii=False) + "\n")

    def olay_bekle(self, kosul, sure=20.0):
        """The first recorded beacon for which kosul(olay) holds, waiting up to sure s."""
        with self.kosul:
            bulundu = self.kosul.wait_for(
                lambda: next((o for o in self.olaylar if kosul(o)), None), timeout=sure)
            return bulundu

    def arka_planda(self):
        threading.Thread(target=self.serve_forever, daemon=True).start()
        return self


class Isleyici(BaseHTTPRequestHandler):
    def log_message(self, *args):
        pass

    def do_GET(self):
        parca = urlsplit(self.path)
        if parca.path == "/olay":
            self.server.olay_ekle(dict(parse_qsl(parca.query, keep_blank_values=True)))
            self.send_response(204)
            self.send_header("Cache-Control", "no-store")
            self.end_headers()
            return
        yol = os.path.normpath(os.path.join(self.server.kok, parca.path.lstrip("/")))
        if not yol.startswith(self.server.kok) or not os.path.isfile(yol):
            yol = os.path.join(self.server.kok, "index.html")
        with open(yol, "rb") as f:
            govde = f.read()
        self.send_response(200)
        tur = mimetypes.guess_type(yol)[0] or "application/octet-stream"
        self.send_header("Content-Type", tur + ("; charset=utf-8" if tur.startswith("text") else ""))
        self.send_header("Content-Length", str(len(govde)))
        self.send_header("Cache-Control", "no-store")
        self.end_headers()
        self.wfile.write(govde)


def main():
    ap = argparse.ArgumentParser(description=__doc__)
    ap.add_argument("--kok", default=os.path.dirname(os.path.abspath(__file__)))
    ap.add_argument("--port", type=int, default=0)
    ap.add_argument("--olaylar")
    a = ap.parse_args()
    sunucu = Sunucu(a.kok, a.port, a.olaylar)
    print(sunucu.adres, flush=True)
    try:
        sunucu.serve_forever()
    except KeyboardInterrupt:
        pass
    return 0


if __name__ == "__main__":
    sys.exit(main())
