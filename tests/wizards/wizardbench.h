// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fakes.h"
#include "support/formkit.h"
#include "wizards/registerforms.h"

namespace zephira {

inline FormCatalogue wizardCatalogue()
{
    FormCatalogue forms;
    wizards::registerForms(forms);
    return forms;
}

/// A wizard with fakes of its own. "chosen" is selected in the editor.
struct WizardBench {
    TestContext world;
    LivingForm form;

    explicit WizardBench(const QString &name) : form(wizardCatalogue(), name, prepared(world)) {}

    QStringList inserted() const { return world.inserter.inserted; }

private:
    static const AppContext &prepared(TestContext &world)
    {
        world.editor.setText(QStringLiteral("<p>chosen</p>"));
        world.editor.selectPart(QStringLiteral("chosen"));
        return world.context;
    }
};

} // namespace zephira
