# A browser without a display, and the pages that are opened in it.
#
#   VEXIL64_TOOL  the built vexil-dbc
# SPDX-License-Identifier: MIT
import json
import os
import pathlib
import subprocess

import pytest
from selenium import webdriver
from selenium.webdriver.common.by import By

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOL = os.path.abspath(os.environ["VEXIL64_TOOL"])


class Page:
    """A report in the browser."""

    def __init__(self, driver, folder):
        self.driver = driver
        self.folder = folder
        self.file = folder / "report.html"

    def open(self, *inputs):
        """Makes a report of files, whose paths may begin at the top of the tree, and opens it."""
        subprocess.run([TOOL, "report", *map(str, inputs), "-o", str(self.file)], check=True,
                       cwd=ROOT)
        self.driver.get_log("performance")
        self.driver.get(self.file.as_uri())
        return self

    def open_text(self, text, name="network.dbc"):
        """The same for a file with this text."""
        file = self.folder / name
        file.write_bytes(text if isinstance(text, bytes) else text.encode())
        return self.open(file)

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def message(self, name):
        """The button that folds a message."""
        buttons = [each for each in self.all(".messages th > button") if each.text.strip() == name]
        assert len(buttons) == 1, name
        return buttons[0]

    def panel(self, name):
        return self.one("#" + self.message(name).get_attribute("aria-controls"))

    def is_unfolded(self, name):
        """Whether the content of the panel can be seen."""
        return self.run("return arguments[0].firstElementChild.checkVisibility()", self.panel(name))

    def shown_messages(self):
        return [each.text.strip() for each in self.all(".messages th > button") if each.is_displayed()]

    def requests(self):
        """The addresses of all requests since the page was opened."""
        entries = [json.loads(each["message"])["message"] for each in self.driver.get_log("performance")]
        return [each["params"]["request"]["url"] for each in entries
                if each["method"] == "Network.requestWillBeSent"]


@pytest.fixture(scope="session")
def driver(tmp_path_factory):
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    # Without a sandbox, since root has none. The only pages are those that these tests make.
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     "--hide-scrollbars", "--force-device-scale-factor=1", "--window-size=1100,900",
                     "--user-data-dir=" + str(tmp_path_factory.mktemp("browser"))):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    browser = webdriver.Chrome(
        service=webdriver.chrome.service.Service("/usr/bin/chromedriver"), options=options)
    browser.set_page_load_timeout(60)
    yield browser
    browser.quit()


@pytest.fixture
def page(driver, tmp_path):
    """A page whose tests fail if the browser complains, asks a question, or sends a request."""
    driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": "", "features": []})
    driver.set_window_size(1100, 900)
    shown = Page(driver, tmp_path)
    driver.get_log("browser")
    yield shown
    assert driver.get_log("browser") == []
    assert set(shown.requests()) <= {shown.file.as_uri()}
    assert driver.execute_script("return performance.getEntriesByType('resource').length") == 0
