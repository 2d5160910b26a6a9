// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace zephira {

/// A control as a screen reader finds it, on the bus of the desktop's assistive technology.
struct SpokenControl {
    QString service;
    QString path;
    QString name;
    QString role;
    bool focusable = false;
    bool showing = false;

    friend bool operator==(const SpokenControl &, const SpokenControl &) = default;
};

/// A small screen reader: it tells the desktop that it runs, as real ones do, and looks at the windows of a program.
class SpokenTree
{
public:
    /// Starts the assistive technology of the session's bus; a failure ends the test program.
    SpokenTree();

    /// The only program of the session, once it has announced itself.
    std::optional<SpokenControl> program() const;
    /// Of a long list, only the first rows.
    std::vector<SpokenControl> children(const SpokenControl &parent) const;
    /// The first control below `top` that fits, rows of lists included; waits for it.
    std::optional<SpokenControl> find(const SpokenControl &top,
                                      const std::function<bool(const SpokenControl &)> &fits) const;
    /// Every showing control below `top`.
    std::vector<SpokenControl> showing(const SpokenControl &top) const;

    /// Does what the control is for, as a click on it would.
    void press(const SpokenControl &control) const;
    /// The line around the caret of an editable text.
    QString lineAtCaret(const SpokenControl &text) const;

private:
    QVariant property(const SpokenControl &control, const QString &interface, const QString &name) const;
    QDBusMessage call(const SpokenControl &control, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    SpokenControl at(const QString &service, const QString &path) const;

    QDBusConnection m_bus;
};

} // namespace zephira
