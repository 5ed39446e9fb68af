#!/usr/bin/env python3
"""A small loopback web server for the demo and the tests.

Serves files from a folder, and the page-side kit of the shell (web/nevo-masaustu.mjs) at
/nevo-masaustu.mjs; any other path gets index.html (a single-page application's routes, such
as /home). GET /olay?... or POST /olay with a JSON object records a beacon
from the page (answered 204) and appends it as a JSON line to --olaylar when given.
GET /komut hands the page the next queued command as JSON, waiting up to a second
(204 when there is none); a command whose page went away meanwhile stays queued for the
next page. GET /oturum-ac signs in as a server does: a cookie that lasts a day
("oturum", HttpOnly) and one that ends with the session ("sekme"); a beacon records the
cookies its request carried as "cerez". GET /yonlendir?hedef=<address> answers with a
redirect (302) there. GET /ek?ad=<name>&boyut=<n> answers n bytes as an attachment named
so (text, which the engine could show, so only the header makes it a download);
GET /yavas?ad=<name>&boyut=<n> the same, its second half held back until the page goes
(30 s at most), for what happens while a download runs. POST /ac with
{"adres": "nevo://…"} has the system open that link (`gio open`), as a browser would hand it
to the desktop; it answers {"tamam": bool, "hata": text}.
Listens on 127.0.0.1 only.
"""
import argparse
import json
import mimetypes
import os
import socket
import subprocess
import sys
import threading
import time
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import parse_qsl, quote, urlsplit

mimetypes.add_type("application/xhtml+xml", ".xhtml")
mimetypes.add_type("text/javascript", ".mjs")  # a module script needs a script type

# The kit the web application imports, from the source tree this server belongs to.
TAKIM = os.path.join(os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(
    __file__)))), "web", "nevo-masaustu.mjs")


class Sunucu(ThreadingHTTPServer):
    daemon_threads = True
    allow_reuse_address = True

    def __init__(self, kok, port=0, olay_dosyasi=None):
        self.kok = os.path.abspath(kok)
        self.olay_dosyasi = olay_dosyasi
        self.olaylar = []
        self.komutlar = []
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

    def komut_ekle(self, komut):
        """Queues a command for the page's /komut loop."""
        with self.kosul:
            self.komutlar.append(komut)
            self.kosul.notify_all()

    def komut_al(self, sure=1.0):
        with self.kosul:
            if self.kosul.wait_for(lambda: self.komutlar, timeout=sure):
                return self.komutlar.pop(0)
            return None

    def komutu_geri_koy(self, komut):
        """Puts back, first in line, a command that could not be delivered."""
        with self.kosul:
            self.komutlar.insert(0, komut)
            self.kosul.notify_all()

    def arka_planda(self):
        threading.Thread(target=self.serve_forever, daemon=True).start()
        return self


class Isleyici(BaseHTTPRequestHandler):
    def log_message(self, *args):
        pass

    def bos_cevap(self):
        self.send_response(204)
        self.send_header("Cache-Control", "no-store")
        self.end_headers()

    def govde_gonder(self, govde, tur):
        self.send_response(200)
        self.send_header("Content-Type", tur)
        self.send_header("Content-Length", str(len(govde)))
        self.send_header("Cache-Control", "no-store")
        self.end_headers()
        self.wfile.write(govde)

    def karsi_taraf_gitti(self):
        """True when the page closed this connection while it waited (its shell ended)."""
        try:
            return self.connection.recv(1, socket.MSG_PEEK | socket.MSG_DONTWAIT) == b""
        except BlockingIOError:
            return False
        except OSError:
            return True

    def ek_gonder(self, sorgu, yavas):
        """An attachment of `boyut` bytes named `ad`; a slow one holds its second half."""
        ad = sorgu.get("ad", "ek.txt")
        boyut = int(sorgu.get("boyut", "16"))
        govde = bytes(ord("a") + i % 26 for i in range(boyut))
        self.send_response(200)
        self.send_header("Content-Type", "text/plain; charset=utf-8")
        self.send_header("Content-Disposition", "attachment; filename*=UTF-8''%s" % quote(ad))
        self.send_header("Content-Length", str(boyut))
        self.send_header("Cache-Control", "no-store")
        self.end_headers()
        try:
            if yavas:
                self.wfile.write(govde[:boyut // 2])
                self.wfile.flush()
                for _ in range(300):
                    if self.karsi_taraf_gitti():
                        return
                    time.sleep(0.1)
                govde = govde[boyut // 2:]
            self.wfile.write(govde)
        except (BrokenPipeError, ConnectionResetError):
            pass

    def komut_ver(self):
        komut = self.server.komut_al()
        if komut is None:
            self.bos_cevap()
            return
        if self.karsi_taraf_gitti():
            self.server.komutu_geri_koy(komut)
            return
        try:
            self.govde_gonder(json.dumps(komut).encode("utf-8"), "application/json")
        except (BrokenPipeError, ConnectionResetError):
            self.server.komutu_geri_koy(komut)

    def baglanti_ac(self, veri):
        """Opens a nevo:// link through the system; nothing else is opened."""
        try:
            adres = json.loads(veri.decode("utf-8")).get("adres", "")
        except (ValueError, AttributeError):
            adres = ""
        if not isinstance(adres, str) or not adres.startswith("nevo://"):
            sonuc = {"tamam": False, "hata": "yalnızca nevo:// bağlantıları açılır"}
        else:
            r = subprocess.run(["gio", "open", adres], capture_output=True, text=True,
                               timeout=30)
            sonuc = {"tamam": r.returncode == 0, "hata": r.stderr.strip()}
        self.govde_gonder(json.dumps(sonuc, ensure_ascii=False).encode("utf-8"),
                          "application/json")

    def do_POST(self):
        uzunluk = int(self.headers.get("Content-Length") or 0)
        veri = self.rfile.read(uzunluk)
        if urlsplit(self.path).path == "/ac":
            self.baglanti_ac(veri)
            return
        if urlsplit(self.path).path == "/olay":
            try:
                olay = json.loads(veri.decode("utf-8"))
            except ValueError:
                olay = None
            if isinstance(olay, dict):
                self.server.olay_ekle(olay)
        self.bos_cevap()

    def do_GET(self):
        parca = urlsplit(self.path)
        if parca.path == "/olay":
            olay = dict(parse_qsl(parca.query, keep_blank_values=True))
            if self.headers.get("Cookie") is not None:
                olay["cerez"] = self.headers["Cookie"]
            self.server.olay_ekle(olay)
            self.bos_cevap()
            return
        if parca.path == "/yonlendir":
            self.send_response(302)
            self.send_header("Location", dict(parse_qsl(parca.query)).get("hedef", "/"))
            self.send_header("Content-Length", "0")
            self.end_headers()
            return
        if parca.path == "/oturum-ac":
            self.send_response(204)
            self.send_header("Set-Cookie", "oturum=kalici; Max-Age=86400; Path=/; HttpOnly")
            self.send_header("Set-Cookie", "sekme=gecici; Path=/; HttpOnly")
            self.send_header("Cache-Control", "no-store")
            self.end_headers()
            return
        if parca.path in ("/ek", "/yavas"):
            self.ek_gonder(dict(parse_qsl(parca.query)), parca.path == "/yavas")
            return
        if parca.path == "/komut":
            self.komut_ver()
            return
        yol = os.path.normpath(os.path.join(self.server.kok, parca.path.lstrip("/")))
        if parca.path == "/nevo-masaustu.mjs":
            yol = TAKIM
        elif not yol.startswith(self.server.kok) or not os.path.isfile(yol):
            yol = os.path.join(self.server.kok, "index.html")
        with open(yol, "rb") as f:
            govde = f.read()
        tur = mimetypes.guess_type(yol)[0] or "application/octet-stream"
        self.govde_gonder(govde, tur + ("; charset=utf-8" if tur.startswith("text") else ""))


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
