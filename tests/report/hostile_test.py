# A file full of markup, scripts and template braces runs nothing, loads nothing and shows as text. The
# fixture checks that the browser logged no complaint and sent no request.
# SPDX-License-Identifier: MIT
import base64
import hashlib
import re

import pytest
from selenium.common.exceptions import NoAlertPresentException

from networks import HOSTILE, hostile, hostile_network


def expect_nothing_ran(page):
    assert page.run("return window.ran === undefined")
    with pytest.raises(NoAlertPresentException):
        page.driver.switch_to.alert.accept()
    counts = page.run("""const count = name => document.querySelectorAll(name).length;
        return ['script', 'style', 'iframe', 'img', 'link', 'base', 'form', 'object', 'a[href^=java]',
                'body script', '[onclick], [onerror], [onload]'].map(count)""")
    assert counts == [1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0]
    assert page.run("return document.querySelectorAll('meta').length") == 3


def test_network_of_hostile_texts_runs_nothing(page):
    page.open_text(hostile_network(), "a.dbc")
    # The library makes an identifier of a send type.
    assert "Send type: _script_window_ran_1__script_" in page.run(
        "return [...document.querySelectorAll('.messages p')].map(each => each.textContent)")
    # Everything that a reader could touch.
    page.one("#unfold").click()
    page.run("document.querySelectorAll('details').forEach(each => each.open = true)")
    page.run("dispatchEvent(new Event('beforeprint'))")
    field = page.one("#search")
    field.send_keys("<script>")
    page.run("""document.querySelectorAll('main *').forEach(each => each.dispatchEvent(new Event('mouseover')))""")
    expect_nothing_ran(page)


@pytest.mark.parametrize("text", HOSTILE)
def test_hostile_text_shows_as_text(page, text):
    page.open_text(hostile(text, 1))
    page.one("#unfold").click()
    # The comment of the message, that of its second signal, and the description of a value.
    paragraphs = page.run("return [...document.querySelectorAll('.messages div p')].map(each => each.textContent)")
    assert text in paragraphs
    assert page.run("return document.querySelector('.messages div tr:nth-child(2) td:nth-child(6)').textContent") == text
    assert page.run("return document.querySelector('.v td').textContent") == text
    expect_nothing_ran(page)


def test_file_names_are_text_as_well(page):
    page.open_text("BO_ 1 A: 8 N\n", "<img src=x onerror=window.ran=1>{{&script}}.dbc")
    assert page.one("h2").text.endswith("<img src=x onerror=window.ran=1>{{&script}}.dbc")
    expect_nothing_ran(page)


def test_policy_names_the_style_and_the_script(page):
    page.open_text("BO_ 1 A: 8 N\n")
    text = page.file.read_text(encoding="utf-8")
    policy = re.search(r'Content-Security-Policy" content="([^"]*)"', text).group(1)
    hashes = {}
    for name in ("style", "script"):
        content = re.search(f"<{name}>(.*?)</{name}>", text, re.DOTALL).group(1)
        hashes[name] = base64.b64encode(hashlib.sha256(content.encode()).digest()).decode()
    assert policy == (f"default-src 'none'; style-src 'sha256-{hashes['style']}'; "
                      f"script-src 'sha256-{hashes['script']}'; base-uri 'none'; form-action 'none'")


def test_policy_stops_a_script_that_is_put_into_the_page(page):
    page.open_text("BO_ 1 A: 8 N\n")
    text = page.file.read_text(encoding="utf-8")
    page.file.write_text(text.replace("<main", "<script>window.ran=1</script><img src=http://127.0.0.1:9/><main"),
                         encoding="utf-8")
    page.driver.get(page.file.as_uri())
    assert page.run("return window.ran === undefined")
    complaints = [each["message"] for each in page.driver.get_log("browser")]
    assert len(complaints) == 2 and all("Content Security Policy" in each for each in complaints)
    page.open_text("BO_ 1 A: 8 N\n")  # the fixture looks at the last page
