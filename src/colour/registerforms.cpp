// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/registerforms.h"

#include "colour/colorpick.h"
#include "colour/colourportal.h"
#include "colour/frmascii.h"
#include "colour/frmchar.h"
#include "colour/frmcolorspy.h"
#include "colour/frmzoom.h"
#include "colour/xscreencolours.h"
#include "core/formcatalogue.h"

using namespace Qt::StringLiterals;

namespace zephira::colour {

void registerForms(FormCatalogue &catalogue)
{
    // The bus is connected when the portal is first used.
    registerForms(catalogue, {std::make_shared<XScreenColours>(), [] {
                                  return std::make_unique<ColourPortal>(QDBusConnection::sessionBus());
                              }});
}

void registerForms(FormCatalogue &catalogue, const SpySources &sources)
{
    catalogue.add<ColorPick>(u"ColorPick"_s);
    catalogue.add<frmascii>(u"frmascii"_s);
    catalogue.add<frmChar>(u"frmChar"_s);
    catalogue.add(u"frmColorSpy"_s, [sources](const AppContext &context, QWidget *owner) -> QWidget * {
        return new frmColorSpy(context, sources, owner);
    });
    catalogue.add(u"frmZoom"_s, [sources](const AppContext &, QWidget *owner) -> QWidget * {
        return new frmZoom(*sources.screen, owner);
    });
}

} // namespace zephira::colour
