# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lists of many short records are shown completely; a body above the limit is refused."""

import pytest

from harness import bodies
from harness.backend import Backend
from harness.cards import cards
from harness.exchange import Answer, answer
from harness.lists import names, scroll
from harness.waiting import until

LIMIT = 64 << 20


@pytest.fixture(scope="module")
def backend():
    backend = Backend(
        alerts=answer(bodies.alerts(*[bodies.alert("a", "low")] * 400_000)),
        inventory=answer(
            bodies.inventory(*[bodies.app("b")] * 500_000, services=["c"] * 2_000_000)),
    ).start()
    yield backend
    backend.stop()


@pytest.fixture(autouse=True)
def every_card_in_view(panel):
    panel.resize(1000, 1000)


def wait_for_cards(panel, **wanted):
    until(lambda: cards(panel).items() >= wanted.items(), f"cards of {wanted}")


def test_many_short_records_are_counted_and_shown(panel):
    wait_for_cards(panel, **{"Recent Alerts": "400000", "Installed Applications": "500000",
                             "Active Services": "2000000"})
    panel.show("Alerts")
    panel.tree.wait_for("list", "Security alerts")
    assert "No threats detected" not in panel.tree.read().texts()
    top = names(panel, "Security alerts")[0]
    assert scroll(panel, "Security alerts", "End")[-1].name == top
    panel.show("Dashboard")


def test_body_above_the_limit_is_refused_and_the_next_good_one_shown(panel, backend):
    body = b'{"alerts":[{"alert_type":"a","severity":"b"}]}'
    backend.reply(alerts=Answer(body=body.ljust(LIMIT)))
    wait_for_cards(panel, **{"Recent Alerts": "1"})
    backend.reply(alerts=Answer(body=body.ljust(LIMIT + 1)))
    wait_for_cards(panel, **{"Recent Alerts": "0"})
    backend.reply(alerts=bodies.alerts(*[bodies.alert()] * 2))
    wait_for_cards(panel, **{"Recent Alerts": "2"})
