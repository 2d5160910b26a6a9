// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/labels.h"

#include "completion/completiontext.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr std::array<QByteArrayView, 5> withoutLabel{"hidden", "submit", "button", "reset", "image"};

/// The type of an input in lower case.
QByteArray typeOf(const MarkupTag &tag)
{
    const MarkupAttribute *type = tag.attribute("type");
    return type ? lowered(type->value).trimmed() : QByteArray();
}

bool isControl(const MarkupTag &tag)
{
    if (tag.key == "select" || tag.key == "textarea")
        return true;
    return tag.key == "input" && std::ranges::find(withoutLabel, QByteArrayView(typeOf(tag))) == withoutLabel.end();
}

/// A name that needs no label element, or one that isn't shown.
bool isNamed(const MarkupTag &tag)
{
    return hasAttribute(tag, "aria-label") || hasAttribute(tag, "aria-labelledby") || hasAttribute(tag, "title")
        || hasAttribute(tag, "hidden");
}

} // namespace

bool hasAttribute(const MarkupTag &tag, QByteArrayView name)
{
    return std::ranges::any_of(tag.attributes, [&](const MarkupAttribute &each) {
        QByteArrayView written = each.name;
        if (written.endsWith(']'))
            written.chop(1);
        if (written.size() < name.size())
            return false;
        const qsizetype start = written.size() - name.size();
        constexpr QByteArrayView binding(":[.");
        return standsAt(written, start, name) && (start == 0 || binding.contains(written[start - 1]));
    });
}

bool lacksAlternative(const MarkupTag &tag)
{
    const bool isPicture = tag.key == "img" || (tag.key == "area" && tag.attribute("href"))
        || (tag.key == "input" && typeOf(tag) == "image");
    const MarkupAttribute *role = tag.attribute("role");
    const bool isOrnament = role && (role->value == "presentation" || role->value == "none");
    return isPicture && !isOrnament && !tag.attribute("v-bind") && !hasAttribute(tag, "alt")
        && !hasAttribute(tag, "aria-label") && !hasAttribute(tag, "aria-labelledby");
}

void Labels::take(const MarkupTag &tag, QByteArrayView text)
{
    if (tag.key == "label") {
        m_depth = std::max(0, m_depth + (tag.isEnd ? -1 : 1));
        const MarkupAttribute *target = tag.isEnd ? nullptr : tag.attribute("for");
        if (target)
            m_labelled.insert(target->value);
        m_hasDynamicLabels = m_hasDynamicLabels || tag.isDynamic || (target && ::zephira::isDynamic(target->value));
        return;
    }
    if (tag.isEnd || tag.isDynamic || m_depth > 0 || !isControl(tag) || isNamed(tag))
        return;
    const MarkupAttribute *id = tag.attribute("id");
    const bool mayBeLabelled = (id && ::zephira::isDynamic(id->value)) || (!id && hasAttribute(tag, "id"));
    if (mayBeLabelled || tag.attribute("v-bind") || tag.attribute("runat"))
        return;
    const qsizetype end = tag.name.data() - text.data() + tag.name.size();
    m_controls.push_back({tag.start, end, id ? id->value : QByteArrayView(), tag.key});
}

void Labels::tell(bool isMadeByServer, ProblemSink &sink) const
{
    for (const Control &control : m_controls) {
        const bool mayBeLabelled = !control.id.isEmpty() && (isMadeByServer || m_hasDynamicLabels);
        if (!mayBeLabelled && !m_labelled.contains(control.id))
            sink.warning(
                control.start, control.end,
                QCoreApplication::translate("Problems", "<%1> has no label.").arg(QString::fromUtf8(control.key)));
    }
}

} // namespace zephira
