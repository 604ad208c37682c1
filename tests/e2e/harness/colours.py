# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The named colours of the panel as pixels."""

BLUE = (0x0B, 0x5F, 0xD9)
GRAY = (0x65, 0x6B, 0x75)
GREEN = (0x18, 0x7A, 0x33)
RED = (0xC4, 0x23, 0x2B)
ORANGE = (0xC7, 0x5B, 0x00)
YELLOW = (0xA8, 0x7B, 0x00)
BLACK = (0, 0, 0)
WHITE = (255, 255, 255)
TINT = (250, 250, 252)
LAUNCH_GROUND = (245, 245, 247)
SUCCESS_TINT = (230, 255, 230)
ERROR_TINT = (255, 230, 230)
SECTION_BORDER = (230, 230, 230)
SEPARATOR = (0xE3, 0xE5, 0xEA)
