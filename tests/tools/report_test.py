#!/usr/bin/env python3
"""Opens the page of one set and of two in a headless Chromium, and uses it: report_test.py QVDB DOCUMENTS

The browser is driven by WebDriver, which is plain HTTP. It reaches the outside through a proxy of this test alone, which
counts whoever comes.
"""

import json
import pathlib
import socketserver
import subprocess
import sys
import tempfile
import threading
import time
import urllib.request

from shared import check as expect, finish

qvdb, documents = sys.argv[1], pathlib.Path(sys.argv[2])

class Proxy(socketserver.BaseRequestHandler):
    """Stands where the network would be."""

    requests = []

    def handle(self):
        line = self.request.recv(200).split(b"\r\n")[0].decode("latin-1")
        self.requests.append(line)
        self.request.sendall(b"HTTP/1.1 502 No\r\nContent-Length: 0\r\n\r\n")


class Browser:
    def __init__(self, proxy):
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                       text=True)
        for line in self.driver.stdout:
            if "successfully on port" in line:
                self.base = f"http://127.0.0.1:{line.rsplit('port', 1)[1].strip().strip('.')}"
                break
        arguments = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     f"--proxy-server=127.0.0.1:{proxy}", "--proxy-bypass-list=<-loopback>", "--window-size=1200,900"]
        capabilities = {"browserName": "chrome", "goog:chromeOptions": {"args": arguments},
                        "goog:loggingPrefs": {"browser": "ALL"}}
        answer = self.call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
        self.session = f"/session/{answer['sessionId']}"

    def call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self.base + path, data, {"Content-Type": "application/json"}, method=method)
        with urllib.request.urlopen(request, timeout=60) as answer:
            return json.load(answer)["value"]

    def open(self, file):
        self.call("POST", self.session + "/url", {"url": f"file://{file}"})

    def run(self, script):
        return self.call("POST", self.session + "/execute/sync", {"script": script, "args": []})

    def errors(self):
        return [entry["message"] for entry in self.call("POST", self.session + "/se/log", {"type": "browser"})]

    def close(self):
        try:
            self.call("DELETE", self.session)
        finally:
            self.driver.terminate()


def use_one(browser, file):
    browser.open(file)
    expect(browser.errors() == [], "a console without errors")
    expect(browser.run("return document.querySelectorAll('figure svg').length") > 80, "pictures")
    unlabelled = browser.run("return [...document.querySelectorAll('figure svg')].filter(e => !e.getAttribute('aria-label')).length"
                             " + [...document.images].filter(e => !e.alt).length")
    expect(unlabelled == 0, "every picture has a text")
    broken = browser.run("return [...document.images].filter(e => !e.complete || e.naturalWidth !== 33 && e.naturalWidth !== 32).length")
    expect(broken == 0 and browser.run("return document.images.length") > 10, "maps of 33 x 33 and 32 x 32 dots")
    ids = browser.run("const ids = [...document.querySelectorAll('[id]')].map(e => e.id); return ids.length - new Set(ids).size")
    expect(ids == 0, "no id stands twice")

    seen = "return [...document.querySelectorAll('tr[id], figure[id]')].filter(e => e.checkVisibility()).map(e => e.id)"
    browser.run("search.value = 'setPoint'; search.dispatchEvent(new Event('input'))")
    found = browser.run(seen)
    expect("AE_3.setPoint" in found and len(found) < 10, f"the search finds the field: {found}")
    browser.run("search.value = 'no such thing'; search.dispatchEvent(new Event('input'))")
    expect(browser.run(seen) == [] and browser.run("return !nothing.hidden"), "the search finds nothing")
    browser.run("search.value = ''; search.dispatchEvent(new Event('input'))")
    expect(len(browser.run(seen)) > 100, "all is there again")

    strength = "return document.getElementById('A2DNR_5_2.tables().strength').querySelector('output').textContent"
    browser.run("const n = document.getElementById('gain-value'); n.value = 3; n.dispatchEvent(new Event('input'))")
    first = browser.run(strength)
    at = json.loads(subprocess.run([qvdb, "at", documents / "imx477.json", "A2DNR_5_2.tables[0].strength", "--gain", "3",
                                    "--interpolate", "linear", "--json"], capture_output=True, text=True, check=True).stdout)
    expect(first.startswith("[0] 2.8"), f"the neighbouring points of gain 3: {first}")
    browser.run("interpolate.click()")
    value = float(browser.run(strength).split(": ")[-1])
    expected = at["schedules"][0]["lists"][0]["linear"]
    expect(abs(value - expected) < 1e-3, f"between the points the page says {value}, qvdb at {expected}")
    browser.run("gain.value = 900; gain.dispatchEvent(new Event('input'))")
    expect(browser.run(strength) != first, "the slider changes the values")
    moved = browser.run("return document.querySelector('.cursor').getAttribute('transform')")
    expect(moved.startswith("translate(2"), f"the cursor moves: {moved}")
    for width in (400, 2000):
        browser.call("POST", browser.session + "/window/rect", {"width": width, "height": 900})
        wide = browser.run("return document.documentElement.scrollWidth - document.documentElement.clientWidth")
        expect(wide <= 0, f"no scrolling to the side at {width} pixels: {wide} too wide")


def use_two(browser, file):
    browser.open(file)
    expect(browser.errors() == [], "two: a console without errors")
    lines = browser.run("const f = document.getElementById('A2DNR_5_2.tables().strength');"
                        "return [f.querySelectorAll('path.a').length, f.querySelectorAll('path.b').length]")
    expect(lines[0] == lines[1] > 0, f"two: both lie in a picture: {lines}")
    links = browser.run("return [...document.querySelectorAll('#differences a')].map(e => [e.textContent, e.hash])")
    expect([link[0] for link in links] == ["A2DNR_5_2.tables[0].strength[3]", "AE_3.setPoint", "LSC_4.matrix[0][500]"],
           f"two: the differences: {links}")
    lost = [link for link in links if not browser.run(f"return !!document.getElementById(decodeURIComponent({link[1][1:]!r}))")]
    expect(lost == [], f"two: each leads to its place: {lost}")
    browser.run("document.querySelectorAll('#differences a')[1].click()")
    time.sleep(0.2)
    expect(browser.run("return document.getElementById('AE_3.setPoint').checkVisibility()"), "two: a link opens its table")
    expect(browser.run("return document.querySelectorAll('.findings li.error').length") == 0, "two: no findings")


with tempfile.TemporaryDirectory() as name, socketserver.ThreadingTCPServer(("127.0.0.1", 0), Proxy) as server:
    folder = pathlib.Path(name)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    sample = documents / "imx477.json"
    subprocess.run([qvdb, "set", sample, "AE_3.setPoint=45", "A2DNR_5_2.tables[0].strength[3]=7", "LSC_4.matrix[0][500]=5000",
                    "-o", folder / "b.json"], check=True, capture_output=True)
    subprocess.run([qvdb, "report", sample, "-o", folder / "one.html"], check=True)
    subprocess.run([qvdb, "report", sample, folder / "b.json", "-o", folder / "two.html"], check=True)
    (folder / "faulty.json").write_text('{"tuning": {"AE_3": {"setPoint": 45, "<b>": 1}, "2DNR_5_2": {"strength": 300}}}')
    subprocess.run([qvdb, "report", folder / "faulty.json", "-o", folder / "faulty.html"], check=True)
    for file in ("one.html", "two.html"):
        expect((folder / file).stat().st_size < 3_000_000, f"{file} is small")
        expect("http:" not in (folder / file).read_text() and "https:" not in (folder / file).read_text(), f"{file} names no address")
    browser = Browser(server.server_address[1])
    try:
        Proxy.requests.clear()
        use_one(browser, folder / "one.html")
        use_two(browser, folder / "two.html")
        browser.open(folder / "faulty.html")
        texts = browser.run("return [...document.querySelectorAll('.findings li')].map(e => e.textContent)")
        expect(len(texts) == 2 and "<b>" in texts[0] and "300" in texts[1], f"the findings: {texts}")
    finally:
        browser.close()
    # The browser's own services ask for their makers' hosts; the page has no business with any.
    asked = [line for line in Proxy.requests if name in line or "localhost" in line]
    expect(asked == [], f"no request leaves the page: {asked}")
    server.shutdown()

finish()
