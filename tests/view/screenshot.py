"""screenshot.py PAGE PICTURE [SCRIPT]: the page at a desktop's size, after a script has run in it, as PNG."""
import sys

from browser import settle, show, start

page, picture, *scripts = sys.argv[1:]
browser = start()
show(browser, page, 1200, 760)
for script in scripts:
    browser.execute_script(script)
settle(browser)
settle(browser)
browser.save_screenshot(picture)
browser.quit()
