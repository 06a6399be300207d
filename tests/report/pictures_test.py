# The pictures of docs/tool.md, made only on request.
#
#   VEXIL64_PICTURES  the folder to make them in
# SPDX-License-Identifier: MIT
import os

import pytest
from selenium.webdriver.common.action_chains import ActionChains

FOLDER = os.environ.get("VEXIL64_PICTURES")


@pytest.mark.skipif(not FOLDER, reason="scripts/test-report --screenshots makes the pictures")
@pytest.mark.parametrize("scheme", ["light", "dark"])
def test_picture(page, scheme):
    page.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": "prefers-color-scheme", "value": scheme}]})
    page.open("samples/powertrain.dbc")
    page.message("EngineStatus").click()
    ActionChains(page.driver).move_to_element(page.one("h1")).perform()  # off the button
    page.run("document.activeElement.blur()")
    page.driver.set_window_size(1000, 1672)
    page.run("scrollTo(0, 0)")
    page.driver.save_screenshot(os.path.join(FOLDER, f"report-{scheme}.png"))
