# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Well-formed bodies of the agent's four endpoints, to be varied by tests."""


def status(**changes):
    return {
        "protection_enabled": True,
        "threat_count": 0,
        "last_alert": "none",
        "status": "ok",
        "last_scan": "2024-01-15T10:30:00Z",
    } | changes


def alert(alert_type="malware", severity="high", **optional):
    return {"alert_type": alert_type, "severity": severity} | optional


def connection(local_port="7823", **changes):
    return {
        "protocol": "tcp",
        "local_address": "127.0.0.1",
        "local_port": local_port,
        "remote_address": "10.0.0.5",
        "remote_port": "443",
        "state": "ESTABLISHED",
    } | changes


def app(name="Files", **optional):
    return {"name": name} | optional


def alerts(*entries):
    return {"alerts": list(entries)}


def network(*entries):
    return {"connections": list(entries)}


def inventory(*apps, services=(), interfaces=(), permissions=()):
    return {
        "apps": list(apps),
        "services": list(services),
        "network_interfaces": list(interfaces),
        "permissions": list(permissions),
    }


def everyday():
    """A live agent with a little of everything."""
    return {
        "status": status(threat_count=1),
        "alerts": alerts(
            alert("malware", "high", title="Malware found", description="A bad file"),
            alert("policy", "low"),
        ),
        "network": network(
            connection("7823"), connection("22", state="LISTEN"), connection("80")
        ),
        "inventory": inventory(
            app("Files", version="43.2"),
            app("Terminal"),
            services=["cron", "ssh"],
            interfaces=["lo"],
            permissions=["cap_net_admin"],
        ),
    }
