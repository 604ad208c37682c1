# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The ways in which desktops and users set dark colours for every program."""

from .settings import HOME

GROUND, RAISED, INK, CHOSEN = "27,30,32", "49,54,59", "252,252,252", "61,174,233"
# Newer versions of qt6ct announce what they read.
EXPECTED_OUTPUT = r"(virtual .* Qt6CTPlatformTheme::.*\n)*"
GROUPS = ("View", "Window", "Button", "Tooltip")


def _write(path, lines):
    path = HOME / path
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("\n".join(lines) + "\n")
    return path


def _kde():
    lines = []
    for group in GROUPS:
        ground = GROUND if group == "View" else RAISED
        lines += [f"[Colors:{group}]", f"BackgroundNormal={ground}",
                  f"BackgroundAlternate={RAISED}", f"ForegroundNormal={INK}",
                  f"ForegroundInactive={INK}", f"ForegroundLink={CHOSEN}"]
    lines += ["[Colors:Selection]", f"BackgroundNormal={CHOSEN}", f"ForegroundNormal={INK}"]
    _write(".config/kdeglobals", lines)
    return {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
            "KDE_SESSION_VERSION": "5"}


def _qt6ct():
    # In the order of Qt's colour roles: white for texts, dark for backgrounds.
    ink, ground, raised, chosen = "#fffcfcfc", "#ff1b1e20", "#ff31363b", "#ff3daee9"
    roles = [ink, raised, raised, raised, ground, raised, ink, ink, ink, ground, raised, ground,
             chosen, ink, chosen, chosen, raised, ink, raised, ink, ink]
    colours = ", ".join(roles)
    scheme = _write(".config/qt6ct/dark.conf", [
        "[ColorScheme]", *(f"{state}_colors={colours}" for state in
                           ("active", "inactive", "disabled"))])
    _write(".config/qt6ct/qt6ct.conf", [
        "[Appearance]", f"color_scheme_path={scheme}", "custom_palette=true", "style=Fusion",
        # The default font, so that only the colours differ.
        "[Fonts]", *(f'{font}="Sans Serif,9,-1,5,400,0,0,0,0,0,0,0,0,0,0,1"'
                     for font in ("general", "fixed"))])
    return {"QT_QPA_PLATFORMTHEME": "qt6ct"}


def _controls(style):
    return lambda: {"QT_QUICK_CONTROLS_STYLE": style, "QT_QUICK_CONTROLS_MATERIAL_THEME": "Dark",
                    "QT_QUICK_CONTROLS_UNIVERSAL_THEME": "Dark"}


def _controls_file():
    roles = ("Window", "Base", "Button", "Light", "Mid", "Midlight", "Dark", "ToolTipBase")
    inks = ("WindowText", "Text", "ButtonText", "BrightText", "HighlightedText")
    path = _write("controls.conf", [
        "[Controls]", "Style=Basic", "[Basic\\Palette]", *(f"{r}=#1b1e20" for r in roles),
        *(f"{i}=#fcfcfc" for i in inks), "Highlight=#3daee9"])
    return {"QT_QUICK_CONTROLS_CONF": str(path)}


DARK = {
    "gtk": lambda: {"QT_QPA_PLATFORMTHEME": "gtk3", "GTK_THEME": "Adwaita:dark",
                    "NO_AT_BRIDGE": "1"},
    "kde": _kde,
    "qt6ct": _qt6ct,
    "style": lambda: {"QT_STYLE_OVERRIDE": "Fusion"},
    "material": _controls("Material"),
    "universal": _controls("Universal"),
    "fusion": _controls("Fusion"),
    "controls-file": _controls_file,
}
