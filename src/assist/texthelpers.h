// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/textservices.h"

#include <memory>

namespace zephira {

class Abbreviations;
struct AppContext;
class CodeMax;
class Elements;
class EnclosingElements;
class LastEdit;
class Completer;
class ColourSwatches;
class Problems;
class ToolPanel;
class TypedPairs;

/// What helps with writing in a code view. Each helper is a member, made when the window's late parts are, or when it is
/// used for the first time.
class TextHelpers
{
public:
    /// All must outlive the helpers.
    TextHelpers(CodeMax &rt, const AppContext &context, ToolPanel &panel);
    ~TextHelpers();

    /// Starts the helpers that work by themselves while one types.
    void start();

    CodeMax &rt() const { return m_rt; }
    const AppContext &context() const { return m_context; }
    ToolPanel &panel() const { return m_panel; }
    const TextServices &services() const { return m_services; }
    /// To be called before the helpers are started.
    void setServices(TextServices services) { m_services = std::move(services); }

    Abbreviations &abbreviations();

    LastEdit &lastEdit() { return *m_lastEdit; }
    Completer &completer();
    /// Made at first use.
    ColourSwatches &swatches();
    Elements &elements();
    EnclosingElements &enclosing();
    TypedPairs &typedPairs();
    Problems &problems();
    /// The text is in another language now.
    void languageChanged();

private:
    CodeMax &m_rt;
    const AppContext &m_context;
    ToolPanel &m_panel;
    std::unique_ptr<LastEdit> m_lastEdit;
    std::unique_ptr<Elements> m_elements;
    std::unique_ptr<EnclosingElements> m_enclosing;
    std::unique_ptr<TypedPairs> m_typedPairs;
    TextServices m_services;
    std::unique_ptr<Abbreviations> m_abbreviations;
    std::unique_ptr<Completer> m_completer;
    std::unique_ptr<Problems> m_problems;
    ColourSwatches *m_swatches = nullptr;
};

} // namespace zephira
