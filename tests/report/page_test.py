# The page that vexil-dbc report writes, as a browser shows it: search, folding, layouts, keyboard, print,
# colours, sizes. hostile_test.py has the files that attack it.
# SPDX-License-Identifier: MIT
import subprocess
import time

import pytest
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

from conftest import ROOT, TOOL
from networks import large_network

POWERTRAIN = ROOT / "samples" / "powertrain.dbc"
ROOF = ROOT / "samples" / "roof.dbc"


def search(page, words, expected):
    """Types words into the search, and waits for the number of hits."""
    field = page.one("#search")
    field.clear()
    field.send_keys(words)
    hits = page.one("#hits")
    WebDriverWait(page.driver, 20).until(lambda _: hits.text == expected, f"{words}: {hits.text}")


def layout_rows(page, name):
    """The texts that the picture of a message shows, but for the numbers of bits and bytes."""
    return [each.text for each in page.panel(name).find_elements(By.CSS_SELECTOR, "svg g > text")]


def test_search_shows_matching_messages_and_signals(page):
    page.open(POWERTRAIN)
    assert page.one("#hits").text == "5 of 5 messages, 17 of 17 signals"
    search(page, "wheelspeed", "1 of 5 messages, 4 of 17 signals")
    assert page.shown_messages() == ["WheelSpeeds"]
    search(page, "boostpress", "1 of 5 messages, 1 of 17 signals")
    assert page.shown_messages() == ["Diagnostics"]
    rows = [each.text for each in page.panel("Diagnostics").find_elements(By.CSS_SELECTOR, "tbody th")
            if each.is_displayed()]
    assert "BoostPressure m1" in rows and "FuelRate m0" not in rows
    search(page, "diagnostics page", "1 of 5 messages, 1 of 17 signals")
    page.run("document.getElementById('unfold').click()")
    rows = [each.text for each in page.panel("Diagnostics").find_elements(By.CSS_SELECTOR, "tbody th")
            if each.is_displayed()]
    assert "Page M" in rows and "FuelRate m0" in rows  # all signals of a message that is a hit itself
    search(page, "0x100", "1 of 5 messages, 0 of 17 signals")
    assert page.shown_messages() == ["EngineStatus"]
    search(page, "Cranking", "1 of 5 messages, 0 of 17 signals")
    search(page, "crankshaft ENGINE", "1 of 5 messages, 1 of 17 signals")
    search(page, "no such thing", "0 of 5 messages, 0 of 17 signals")
    assert page.shown_messages() == []
    page.one("#search").send_keys(Keys.ESCAPE)
    WebDriverWait(page.driver, 20).until(lambda _: len(page.shown_messages()) == 5)
    assert page.one("#hits").text == "5 of 5 messages, 17 of 17 signals"


def test_search_announces_its_hits(page):
    page.open(POWERTRAIN)
    hits = page.one("#hits")
    assert hits.get_attribute("aria-live") == "polite"
    assert hits.aria_role == "status"
    assert page.one("#search").accessible_name == "Search"


def test_unfolding_shows_signals_layout_and_values(page):
    page.open(POWERTRAIN)
    button = page.message("EngineStatus")
    panel = page.panel("EngineStatus")
    assert button.get_attribute("aria-expanded") == "false" and not page.is_unfolded("EngineStatus")
    assert panel.size["height"] == 0
    button.click()
    assert button.get_attribute("aria-expanded") == "true" and page.is_unfolded("EngineStatus")
    captions = [each.text for each in panel.find_elements(By.TAG_NAME, "caption")]
    assert captions == ["Signals of EngineStatus", "Values of EngineState"]
    heads = [each.text for each in panel.find_elements(By.CSS_SELECTOR, "thead th[scope=col]")]
    assert heads == ["Signal", "Start bit, type", "Factor, offset", "Range, unit", "Receivers", "Notes",
                     "Value", "Meaning"]
    assert "State of the engine, sent all the time" in panel.text
    assert "negative while the engine brakes" in panel.text
    assert "Not available" in panel.text
    assert layout_rows(page, "EngineStatus") == [
        "EngineSpeed", "EngineSpeed", "CoolantTemp", "ThrottlePosition", "EngineState", "EngineTorque",
        "EngineTorque"]
    button.click()
    assert not page.is_unfolded("EngineStatus")


def test_layout_has_each_signal_in_its_bits(page):
    page.open_text("""BO_ 1 A: 3 N
 SG_ Little : 4|8@1+ (1,0) [0|0] "" R
 SG_ Big : 22|6@0+ (1,0) [0|0] "" R
""")
    page.message("A").click()
    # By bit, where 64 units are one bit, 22 one byte, and 34 and 16 are around the grid.
    places = page.run("""return [...document.querySelectorAll('svg g > rect')].map(rect =>
        [rect.previousSibling.textContent, (rect.y.baseVal.value - 16) / 22,
         7 - (rect.x.baseVal.value - 34) / 64, rect.width.baseVal.value / 64])""")
    heads = page.run("""return [...document.querySelectorAll('svg > text')].map(
        text => [text.textContent, text.x.baseVal[0].value, text.y.baseVal[0].value])""")
    assert heads == ([[str(bit), 34 + (7.5 - bit) * 64, 11] for bit in range(8)] +
                     [[str(row), 26, 16 + row * 22 + 15] for row in range(3)])
    assert places == [["Little", 0, 7, 4], ["Little", 1, 3, 4], ["Big", 2, 6, 6]]


def test_layout_names_more_signals_than_there_are_letters(page):
    page.open_text("BO_ 1 A: 8 N\n" + "".join(
        f' SG_ S{index} : {index}|1@1+ (1,0) [0|0] "" R\n' for index in range(64)))
    page.message("A").click()
    assert sorted(layout_rows(page, "A"), key=lambda name: int(name[1:])) == [f"S{index}" for index in range(64)]
    # Neighbours differ in their tints.
    tints = page.run("return [...document.querySelectorAll('svg g > rect')].map(each => each.className.baseVal)")
    assert all(one != other for one, other in zip(tints, tints[1:]))


def test_layout_shows_where_the_message_ends(page):
    page.open_text("""BO_ 1 A: 1 N
 SG_ S : 12|3@1+ (1,0) [0|0] "" R
BO_ 2 B: 2 N
""")
    page.message("A").click()
    page.message("B").click()
    assert page.run("return [...document.querySelectorAll('svg line')].map(each => each.y1.baseVal.value)") == [38]
    captions = [each.text for each in page.all("figcaption")]
    assert ["a line at the end of the message" in each for each in captions] == [True, False]
    # The start bit has a dot, in the middle of its cell but for a margin.
    dots = page.run("return [...document.querySelectorAll('svg circle')].map(each => [each.cx.baseVal.value, each.cy.baseVal.value])")
    assert dots == [[34 + 4 * 64 - 7, 42]]


def test_browser_search_unfolds_what_it_finds(page):
    page.open(POWERTRAIN)
    page.run("arguments[0].dispatchEvent(new Event('beforematch'))", page.panel("WheelSpeeds"))
    assert page.is_unfolded("WheelSpeeds")


def test_layout_exists_for_each_multiplexer_value(page):
    page.open(POWERTRAIN)
    page.message("Diagnostics").click()
    captions = [each.text for each in page.panel("Diagnostics").find_elements(By.TAG_NAME, "figcaption")]
    assert [each.split(":")[0] for each in captions] == [
        f"Layout with the multiplexer value {value}" for value in (0, 1, 2)]
    labels = [each.get_attribute("aria-label") for each in page.all("svg[role=img]")]
    assert len(labels) == 3 and labels[1].startswith(
        "Layout of Diagnostics with the multiplexer value 1.")


def test_overlaps_are_marked(page):
    page.open_text("""BO_ 1 A: 1 N
 SG_ One : 0|6@1+ (1,0) [0|0] "" R
 SG_ Two : 4|4@1+ (1,0) [0|0] "" R
""")
    page.message("A").click()
    assert "Overlaps: Two overlaps One" in page.panel("A").text
    assert len(page.all("svg rect.x")) == 1
    assert "dashes around bits of several signals" in page.one("figcaption").text


def test_account_names_the_statements_that_are_not_kept(page):
    page.open(ROOF)
    causes = page.all("details.cause")
    assert causes[0].text.startswith("refused, message-id: 1 - ")
    causes[0].find_element(By.TAG_NAME, "summary").click()
    assert "BO_ 0x321 RoofStatus: 1 Roof" in causes[0].text


def test_keyboard_reaches_everything(page):
    page.open(POWERTRAIN, ROOF)
    wanted = page.run("""return [...document.querySelectorAll('a, input, button, summary')].length""")
    reached = []
    for _ in range(wanted):
        page.driver.switch_to.active_element.send_keys(Keys.TAB)
        element = page.driver.switch_to.active_element
        assert page.run("return arguments[0].matches(':focus-visible')", element)
        assert page.run("return getComputedStyle(arguments[0]).outlineStyle", element) == "solid"
        reached.append(element.id)
    assert len(set(reached)) == wanted
    # Without a mouse: unfold a message, fold it again, open a cause.
    button = page.message("WheelSpeeds")
    page.run("arguments[0].focus()", button)
    button.send_keys(Keys.ENTER)
    assert page.is_unfolded("WheelSpeeds")
    button.send_keys(Keys.SPACE)
    assert not page.is_unfolded("WheelSpeeds")
    summary = page.one("summary")
    summary.send_keys(Keys.ENTER)
    assert page.one("details").get_attribute("open") == "true"


def test_skip_link_is_the_first_stop_and_leads_to_the_content(page):
    page.open(POWERTRAIN)
    page.one("body").send_keys(Keys.TAB)
    link = page.driver.switch_to.active_element
    assert link.text == "Skip to the content" and link.location["x"] >= 0
    link.send_keys(Keys.ENTER)
    assert page.driver.switch_to.active_element.get_attribute("id") == "content"


def test_structure_is_there_for_screen_readers(page):
    page.open(POWERTRAIN, ROOF)
    for selector in ("header", "main", "footer", "nav[aria-label]", "[role=search] label[for=search]",
                     "section[aria-labelledby]"):
        assert page.all(selector), selector
    levels = page.run("return [...document.querySelectorAll('h1,h2,h3')].map(each => each.tagName)")
    assert levels == ["H1"] + ["H2", "H3", "H3", "H3"] * 2
    page.one("#unfold").click()
    unnamed = page.run("""return [...document.querySelectorAll('table')].filter(
        table => !table.caption || !table.caption.textContent || !table.tHead).length""")
    assert unnamed == 0
    assert page.all("th:not([scope])") == []
    assert page.run("return document.documentElement.lang") == "en"


def test_print_unfolds_everything_and_folds_it_again(page):
    page.open(POWERTRAIN)
    page.message("WheelSpeeds").click()
    hidden = "return document.querySelectorAll('.messages div[hidden], details:not([open])').length"
    before = page.run(hidden)
    assert before > 4
    page.run("dispatchEvent(new Event('beforeprint'))")
    assert page.run(hidden) == 0
    assert len(page.all("svg")) == 7
    page.run("dispatchEvent(new Event('afterprint'))")
    assert page.run(hidden) == before
    assert page.is_unfolded("WheelSpeeds")


def test_print_style_shows_what_is_folded(page):
    page.open(POWERTRAIN)
    page.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": "print"})
    assert page.is_unfolded("EngineStatus")
    assert not page.one("#search").is_displayed()
    assert page.run("return getComputedStyle(document.body).backgroundColor") == "rgb(255, 255, 255)"


def test_prints_as_a_document(page):
    page.open(POWERTRAIN)
    pdf = page.driver.execute_cdp_cmd("Page.printToPDF", {})["data"]
    assert pdf.startswith("JVBER")  # %PDF in base64


def test_narrow_screens_need_no_scrolling_aside(page):
    page.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
        "width": 390, "height": 800, "deviceScaleFactor": 1, "mobile": False})
    try:
        page.open(POWERTRAIN, ROOF)
        page.one("#unfold").click()
        assert page.run("return [innerWidth, document.documentElement.scrollWidth]") == [390, 390]
    finally:
        page.driver.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})


BACKGROUND = "return getComputedStyle(document.body).backgroundColor"


@pytest.mark.parametrize("scheme, other", [("light", "dark"), ("dark", "light")])
def test_colours_follow_the_system_and_the_switch(page, scheme, other):
    colours = {"light": "rgb(255, 255, 255)", "dark": "rgb(18, 23, 28)"}
    page.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": "prefers-color-scheme", "value": scheme}]})
    page.open(POWERTRAIN)
    button = page.one("#dark")
    assert page.run(BACKGROUND) == colours[scheme]
    assert button.get_attribute("aria-pressed") == str(scheme == "dark").lower()
    button.click()
    assert page.run(BACKGROUND) == colours[other]
    assert button.get_attribute("aria-pressed") == str(other == "dark").lower()
    button.click()
    assert page.run(BACKGROUND) == colours[scheme]
    assert page.run("return document.cookie") == ""


# The ratio of the luminances of a text and of what is behind it, as the guidelines for accessible content
# define it; 4.5 is enough for text.
CONTRASTS = """
const luminance = colour => {
    const [r, g, b] = colour.match(/\\d+/g).map(each => each / 255).map(
        each => each <= 0.04045 ? each / 12.92 : ((each + 0.055) / 1.055) ** 2.4);
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
};
const behind = element => {
    for (; element; element = element.parentElement) {
        const colour = getComputedStyle(element).backgroundColor;
        if (!colour.endsWith(', 0)')) return colour;
    }
};
const ratio = (one, other) => {
    const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b);
    return (high + 0.05) / (low + 0.05);
};
const poor = [];
for (const element of document.querySelectorAll('body *')) {
    const style = getComputedStyle(element);
    if (element.closest('svg') || !element.checkVisibility()) continue;
    if (![...element.childNodes].some(each => each.nodeType === 3 && each.data.trim())) continue;
    const found = ratio(style.color, behind(element));
    if (found < 4.5) poor.push([element.tagName, element.textContent, found]);
}
for (const text of document.querySelectorAll('svg g > text')) {
    const found = ratio(getComputedStyle(text).fill, getComputedStyle(text.parentNode.querySelector('rect')).fill);
    if (found < 4.5) poor.push(['text', text.textContent, found]);
}
return poor;
"""


@pytest.mark.parametrize("scheme", ["light", "dark"])
def test_texts_have_enough_contrast(page, scheme):
    page.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": "prefers-color-scheme", "value": scheme}]})
    page.open(POWERTRAIN)
    page.one("#unfold").click()
    assert page.run(CONTRASTS) == []
    search(page, "gear", "1 of 5 messages, 1 of 17 signals")
    assert page.run(CONTRASTS) == []


def test_content_is_there_without_scripts(page):
    page.driver.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": True})
    try:
        page.open(POWERTRAIN)
        text = page.one("main").text
        for part in ("EngineTorque", "47 s12 BE", "State of the engine, sent all the time", "Cranking",
                     "Statements by fate"):
            assert part in text, part
        assert not page.one("#search").is_displayed()
    finally:
        page.driver.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": False})


def test_large_network_is_small_and_usable_at_once(page):
    page.open_text(large_network())
    size = page.file.stat().st_size
    timing = page.run("""const [entry] = performance.getEntriesByType('navigation');
        return [entry.domInteractive, entry.loadEventEnd]""")
    began = time.monotonic()
    search(page, "quantity_777_3", "1 of 1000 messages, 1 of 10000 signals")
    searched = time.monotonic() - began
    page.one("#search").send_keys(Keys.ESCAPE)
    WebDriverWait(page.driver, 20).until(lambda _: page.one("#hits").text == "1000 of 1000 messages, 10000 of 10000 signals")
    began = time.monotonic()
    page.one("#unfold").click()
    unfolded = time.monotonic() - began
    print(f"1,000 messages with 10 signals: {size} bytes, parsed after {timing[0]:.0f} ms, "
          f"loaded after {timing[1]:.0f} ms, searched in {searched:.2f} s, unfolded in {unfolded:.2f} s")
    assert size < 1_000_000
    assert len(page.all("svg")) == 1000


def test_same_files_give_the_same_bytes(tmp_path):
    pages = [subprocess.run([TOOL, "report", str(POWERTRAIN), "-o", "-"], check=True, capture_output=True).stdout
             for _ in range(2)]
    assert pages[0] == pages[1]
