// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/office/parseXML.h"
#include <QStringList>

namespace Varlo {

/// Collects the text elements of a document, spreadsheet or presentation: those named "t" (shared strings), or so
/// behind a prefix (w:t in documents, a:t in drawings).
class TextElementCollector final : public XMLHandler {
public:
    void startElement(std::string_view name, const XMLAttributes &attributes) override;
    void endElement(std::string_view name) override;
    /// Stops with the piece that brings the text to more than 12,000 characters.
    Next characters(QByteArrayView utf8) override;

    /// One string a text element, in the order of the document.
    [[nodiscard]] const QStringList &texts() const { return m_texts; }

private:
    QStringList m_texts;
    bool m_isInTextElement = false;
    qsizetype m_collectedCount = 0; // characters in m_texts, counted piece by piece
};

} // namespace Varlo
