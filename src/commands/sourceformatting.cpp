// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/sourceformatting.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "tools/sourceformatter.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Pending events are processed each time this many pieces of a text are done: often enough to keep the window
/// responsive, but not so often that it costs much time.
constexpr unsigned piecesBetweenPauses = 1024;

} // namespace

SourceFormatting::SourceFormatting(const AppContext &context) : m_editor(context.editor), m_prompts(context.prompts) {}

void SourceFormatting::compact()
{
    m_editor.setText(Compact(m_editor.text()));
}

void SourceFormatting::simple()
{
    m_editor.setText(Simple(m_editor.text()));
}

void SourceFormatting::hierarchical()
{
    tellingErrors(m_prompts, u"frmmain"_s, u"mnuformath_Click"_s, {[this] {
                      unsigned pieces = 0;
                      const std::weak_ptr<Window> window = m_window;
                      const QString formatted = Hierarchical(m_editor.text(), [&] {
                          if (pieces++ % piecesBetweenPauses == 0)
                              QCoreApplication::processEvents();
                          return !window.expired();
                      });
                      // If the window is gone, this object may be gone, too.
                      if (!window.expired())
                          m_editor.setText(formatted);
                  }});
}

void SourceFormatting::abandon()
{
    m_window = std::make_shared<Window>();
}

} // namespace zephira
