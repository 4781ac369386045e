"""pages.py SORVIKPRE SORVIKVIEW EXAMPLES: the pages of the examples, as a reader uses them in a browser."""
import pathlib
import shutil
import subprocess
import sys
import tempfile

from browser import settle, show, start

pre, view, examples = sys.argv[1:4]
sizes = {"desktop": (1100, 720), "phone": (390, 844)}
failures = []

# Numbers that stand for the whole picture: a hash of all its pixels, and how many of them are painted, of the
# colours of the hull, and of the colour of the water, by their red, green and blue.
PICTURE = """const counts = {hash: 0, painted: 0, hull: 0, water: 0};
for (const canvas of document.querySelectorAll("canvas")) {
  const copy = Object.assign(document.createElement("canvas"), {width: canvas.width, height: canvas.height});
  const paper = copy.getContext("2d", {willReadFrequently: true});
  paper.drawImage(canvas, 0, 0);
  const {data} = paper.getImageData(0, 0, copy.width, copy.height);
  for (let i = 0; i < data.length; i += 4) {
    const red = data[i], green = data[i + 1], blue = data[i + 2], alpha = data[i + 3];
    counts.hash = Math.imul(31, counts.hash) + (red << 16 | green << 8 | blue) + alpha | 0;
    if (canvas.className === "view") {
      counts.painted += alpha > 0;
      counts.hull += alpha === 255 && red > 1.15 * blue;
      counts.water += alpha > 0 && blue > 1.15 * red;
    }
  }
}
return counts;"""


def check(what, holds):
    if not holds:
        failures.append(what)
        print("failed:", what)


def picture():
    return browser.execute_script(PICTURE)


def text(selector):
    return browser.execute_script("return document.querySelector(arguments[0]).textContent", selector)


def click(selector):
    browser.execute_script("document.querySelector(arguments[0]).click()", selector)
    settle(browser)


def changes(what, act):
    before = picture()["hash"]
    act()
    settle(browser)
    check(what + " changes the picture", picture()["hash"] != before)


def press(key):
    browser.execute_script("document.querySelector('canvas.view').dispatchEvent("
                           "new KeyboardEvent('keydown', {key: arguments[0], bubbles: true}))", key)


def mouse(*events):
    """Real events, by the browser itself: their kinds, and their places from the middle of the picture."""
    x, y = browser.execute_script("""const box = document.querySelector("canvas.view").getBoundingClientRect();
        return [box.x + box.width / 2, box.y + box.height / 2]""")
    for kind, dx, dy in events:
        browser.execute_cdp_cmd("Input.dispatchMouseEvent", {
            "type": kind, "x": x + dx, "y": y + dy, "button": "left", "buttons": 1, "clickCount": 1})
    settle(browser)


def click_at(dx, dy):
    mouse(("mousePressed", dx, dy), ("mouseReleased", dx, dy))


def drag(distance):
    mouse(("mousePressed", 0, 0), ("mouseMoved", distance, 0), ("mouseReleased", distance, 0))


def switches(name):
    return browser.execute_script("""const label = [...document.querySelectorAll("label")]
        .find(each => each.textContent.trim().startsWith(arguments[0])); label.click()""", name)


def check_hull(name, thoroughly):
    counts = picture()
    check(name + " shows hull and water", counts["hull"] > 2000 and counts["water"] > 2000)
    changes(name + ": Panel edges", lambda: switches("Panel edges"))
    if thoroughly:
        changes("dragging", lambda: drag(60))
        changes("an arrow key", lambda: press("ArrowLeft"))
        for label in ("Normals", "Only the cut", "Water plane"):
            changes(label, lambda: switches(label))
        switches("Only the cut")
    press("3")
    settle(browser)
    click_at(3, 2)
    return text(".panel output")


def check_sea(name):
    counts = picture()
    check(name + " shows the surface", counts["painted"] > 2000)
    changes(name + ": play", lambda: click("#sea-play"))
    click("#sea-play")
    changes(name + ": exaggeration", lambda: browser.execute_script("""
        const list = document.querySelector("#sea-height"); list.selectedIndex = list.options.length - 1;
        list.dispatchEvent(new Event("change"))"""))


def check_print():
    """A dark page prints light, with its picture."""
    show(browser, str(place / "hull.html"), 1280, 900, dark=True)
    corner, middle = browser.execute_script("""dispatchEvent(new Event("beforeprint"));
        const copy = document.querySelector("canvas.printed");
        const pixel = (x, y) => [...copy.getContext("2d").getImageData(x, y, 1, 1).data];
        const pixels = [pixel(1, 1), pixel(copy.width / 2, copy.height / 2)];
        dispatchEvent(new Event("afterprint"));
        return pixels;""")
    check("a dark page prints light", corner == [255, 255, 255, 255] and middle[0] > 1.15 * middle[2])


def make(*arguments):
    subprocess.run([view, *arguments], check=True, cwd=place, stdout=subprocess.DEVNULL)


def prepare():
    """Makes the pages of the examples, and one of a hull with a hole and a name like a script."""
    for folder in pathlib.Path(examples).iterdir():
        if folder.is_dir():
            shutil.copytree(folder, place / folder.name)
    quiet = {"stdout": subprocess.DEVNULL}
    subprocess.run([pre, "-nemoh", "-f", "nemohProject.m"], cwd=place / "2-nemoh", **quiet)
    subprocess.run([pre, "-waveElevation", "-f", "jonswapSea.m", "-domain", "200", "100", "20", "10", "-o", "sea"],
                   cwd=place / "4-jonswap", **quiet)
    subprocess.run([pre, "-waveElevation", "-f", "regularWave.m", "-xyFile", "regularWave.xy", "-o", "<script>"],
                   cwd=place / "3-regular-wave", **quiet)
    facets = (place / "1-hull/barge.stl").read_text().split("endfacet")
    (place / "<script>.stl").write_text("endfacet".join(facets[:20] + facets[21:]))
    make("hull", "1-hull/barge.stl", "-o", "hull.html")
    make("hull", "1-hull/barge.stl", "1-hull/spar.stl", "-o", "hulls.html")
    make("hull", "<script>.stl", "-o", "hole.html")
    make("project", "2-nemoh/nemohProject", "-o", "project.html")
    make("sea", "4-jonswap/sea", "-o", "sea.html")
    make("sea", "3-regular-wave/<script>", "-o", "probes.html")


def check_pages(size):
    width, height = sizes[size]
    for page in ("hull", "hulls", "hole", "project", "sea", "probes"):
        name = page + " on a " + size
        show(browser, str(place / page) + ".html", width, height)
        check(name + " fits in the width", browser.execute_script(
            "return document.documentElement.scrollWidth <= innerWidth"))
        if page == "sea":
            check_sea(name)
        elif page == "probes":
            check(name + " shows curves", browser.execute_script(
                "return document.querySelectorAll('svg.figure').length >= 2"))
        else:
            told = check_hull(name, page == "hole" and size == "desktop")
            # The mesh of the project is cut, and shows its bottom from above; the spar is the higher hull.
            seen = {"project": "normal (0, 0, -1)", "hulls": "spar.stl, panel"}.get(page, "normal (0, 0, 1)")
            check(name + ": a click tells of the panel on top: " + told, seen in told)
        if page == "hole":
            check("the name shows as it is", text("h1") == "<script>.stl")
            changes("a place of a finding", lambda: click(".finding .place"))
            changes("the switch of a finding", lambda: click(".finding input"))
        messages = browser.get_log("browser")
        check(name + " leaves the console empty: " + str(messages), not messages)


with tempfile.TemporaryDirectory() as folder:
    place = pathlib.Path(folder)
    browser = start()
    try:
        prepare()
        for size in sizes:
            check_pages(size)
        check_print()
    finally:
        browser.quit()
sys.exit(1 if failures else 0)
