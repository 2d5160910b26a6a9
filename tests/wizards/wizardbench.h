// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fakes.h"
#include "support/formkit.h"
#include "wizards/registerforms.h"

#include <functional>

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

    /// `prepare` may change the world before the wizard is made.
    explicit WizardBench(const QString &name, const std::function<void(TestContext &)> &prepare = {})
        : form(wizardCatalogue(), name, prepared(world, prepare))
    {}

    QStringList inserted() const { return world.inserter.inserted; }

private:
    static const AppContext &prepared(TestContext &world, const std::function<void(TestContext &)> &prepare)
    {
        world.editor.setText(QStringLiteral("<p>chosen</p>"));
        world.editor.selectPart(QStringLiteral("chosen"));
        if (prepare)
            prepare(world);
        return world.context;
    }
};

} // namespace zephira
