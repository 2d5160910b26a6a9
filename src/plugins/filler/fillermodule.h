// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plugins/filler/fillertext.h"
#include "plugins/zephiraplugin.h"

namespace zephira {

/// Inserts a paragraph of filler text: at each run the next one.
class Filler final : public ZephiraPlugin
{
    Q_OBJECT

public:
    /// `next` is the number of the next paragraph, which outlives this.
    explicit Filler(int &next) : m_next(next) {}

    QString pluginId() const override { return QStringLiteral("Filler Text"); }
    QString pluginversion() const override { return QStringLiteral(ZEPHIRA_VERSION); }
    QString plugindescription() const override { return QStringLiteral("Inserts a paragraph of filler text"); }

    int PluginStart() override
    {
        m_text = fillerParagraph(m_next);
        m_next = (m_next + 1) % fillerParagraphs();
        return ZephiraStart::Done;
    }
    QString strReturn() const override { return m_text; }
    int Pluginlang() const override { return ZephiraLanguage::Html; }

private:
    int &m_next;
    QString m_text;
};

/// The module of the plug-in. It remembers which paragraph comes next.
class FillerModule final : public ZephiraModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZephiraModule_iid)

public:
    QObject *create(const QString &name) override
    {
        return name == QStringLiteral("filler.Main") ? new Filler(m_next) : nullptr;
    }

private:
    int m_next = 0;
};

} // namespace zephira
