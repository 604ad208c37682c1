// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Tests
import Quillmark.Views

/// Every text of the agent is shown unchanged, and fetches nothing.
PolledViewTest {
    name: "HostileText"

    readonly property string image: "<img src=\"http://127.0.0.1:7823/stolen\">"

    readonly property var texts: ({
        "markup": "<b>bold</b><h1>large</h1><table><tr><td>1</td></tr></table>",
        "image": image,
        "link": "<a href=\"http://127.0.0.1:7823/stolen\">here</a>",
        "less than": "a<b && c>d",
        "entity": "&lt;&amp;&#65;",
        "Markdown": "# title\n![picture](http://127.0.0.1:7823/stolen)",
        "newlines": "one\ntwo\r\nthree\u2028four",
        "controls": "a\vb\fc\ttab",
        "right to left": "\u202Eevil\u202C שלום عالم",
        "four bytes": "😀𝄞👩‍👩‍👧‍👦🏴󠁧󠁢󠁥󠁮󠁧󠁿",
        "combining": "a\u0300\u0301\u0302\u0303".repeat(100),
        "percent": "%1 %n %L2 ${home} {0}",
        "url": "image://icon/gear#000 qrc:/qt file:///etc/passwd"
    })

    function test_rows_data() {
        return Object.keys(texts).map(tag => ({ tag: tag, text: texts[tag] }));
    }

    /// Of several new scripts, some are shown only a moment later.
    function initTestCase() {
        for (const text of Object.values(texts)) {
            tryVerify(() => Sample.status(text, 0, text).lastScan === text, patience);
        }
    }

    /// The labels of `view` show exactly these texts, as plain text.
    function compareShown(view, expected) {
        compare(textsIn(view), expected);
        for (const label of labelsIn(view)) {
            compare(label.textFormat, Text.PlainText);
            compare(label.Accessible.name, label.text);
        }
    }

    function test_rows(data) {
        const text = data.text;
        compareShown(make(alertRow, { width: 600, alert: Sample.alert(text, text, text) }), [text, text]);
        compareShown(make(appRow, { width: 600, app: Sample.app(text, text) }), [text, "v" + text]);
        compareShown(make(connectionRow, { width: 600, connection: Sample.connection(text, text, text) }),
                     [text + ":" + text, "→ " + text + ":" + text, text]);
    }

    function test_header_data() {
        return test_rows_data();
    }

    function test_header(data) {
        const view = make(header, { width: 900, status: Sample.status(data.text, 0, data.text) });
        compareShown(view, ["Quillmark Agent", "Endpoint Detection & Response",
                            "Status", data.text.toUpperCase(), "Threats", "0", "Last Scan", data.text]);
    }

    function test_everyTabFetchesNothing_data() {
        return ["dashboard", "network", "inventory", "alerts"].map(tab => ({ tag: tab }));
    }

    function test_everyTabFetchesNothing(data) {
        const field = image;
        answerStatus(field, 1, field);
        answerAlerts([{ alert_type: field, severity: field, title: field, description: field }]);
        answerInventory([{ name: field, version: field, publisher: field, path: field }], [field], [field]);
        answerConnections([{ protocol: field, local_address: field, local_port: field,
                             remote_address: field, remote_port: field, state: field }]);
        const view = makePolling(content, { width: 1000, height: 700, selectedTab: data.tag });
        verify(textsIn(view).includes(field.toUpperCase()));
        grabImage(view);
        // A fetch would have been requested before this poll.
        poll(view.viewModel);
        compare(backend.requests().filter(target => !target.startsWith("/api/")), []);
    }

    Component {
        id: alertRow

        AlertRow {}
    }

    Component {
        id: appRow

        InstalledAppRow {}
    }

    Component {
        id: connectionRow

        NetworkConnectionRow {}
    }

    Component {
        id: header

        HeaderView {}
    }

    Component {
        id: content

        ContentView {}
    }
}
