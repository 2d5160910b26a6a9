# SPDX-License-Identifier: GPL-3.0-or-later
# Menus, toolbars, palette and the routing of their commands. The tables and the router need no window.
set(APP_COMMANDS_LOGIC
  browserpreview.h browserpreview.cpp
  commandrouter.h commandrouter.cpp
  helppages.h helppages.cpp
  menutable.h menutable.cpp
  palettecommands.h palettecommands.cpp
  palettetable.h palettetable.cpp
  quicktag.h quicktag.cpp
  sourceformatting.h sourceformatting.cpp
  tagsmenu.h tagsmenu.cpp
  toolbartable.h toolbartable.cpp
  variablelists.h variablelists.cpp
  windowcommands.h)
set(APP_COMMANDS_FORMS
  glyphs.h glyphs.cpp
  icons.h icons.cpp
  menus.h menus.cpp
  palette.h palette.cpp
  toolbars.h toolbars.cpp
  variablebox.h variablebox.cpp)
