"""Debian's Chromium without a window, for pages that are files. Exits with 77 where it is not there."""
import sys
import tempfile

try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service
except ImportError:
    print("skipped: python3-selenium is not installed")
    sys.exit(77)

FLAGS = """--headless=new --no-sandbox --hide-scrollbars --use-gl=angle --use-angle=swiftshader
    --enable-unsafe-swiftshader --disable-quic --no-first-run --disable-background-networking
    --disable-component-update --disable-sync --allow-file-access-from-files --force-device-scale-factor=1"""


def start():
    """A browser, whose profile goes with it."""
    profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
    options = webdriver.ChromeOptions()
    for flag in FLAGS.split() + ["--user-data-dir=" + profile.name]:
        options.add_argument(flag)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    try:
        browser = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
    except Exception as error:  # whatever keeps it from starting
        print("skipped: chromium or chromedriver does not start:", str(error).splitlines()[0])
        sys.exit(77)
    browser.profile = profile
    browser.set_script_timeout(60)
    return browser


def show(browser, page, width, height, dark=False):
    """Opens a page in a window of that size, and waits until it has drawn."""
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 600})
    browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [
        {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}]})
    browser.get("file://" + page)
    settle(browser)


def settle(browser):
    """Waits for the picture that was asked for last, and for the fine one after coarse ones."""
    browser.execute_async_script("setTimeout(() => requestAnimationFrame(arguments[0]), 400)")
