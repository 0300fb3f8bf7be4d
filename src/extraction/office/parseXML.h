// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArrayView>
#include <QString>
#include <string_view>

namespace Varlo {

/// The attributes of the element that is being told about.
class XMLAttributes {
public:
    /// `namesAndValues` as expat passes them: each name followed by its value, a null pointer at the end.
    explicit XMLAttributes(const char *const *namesAndValues)
        : m_namesAndValues(namesAndValues)
    {
    }
    [[nodiscard]] std::optional<QString> value(std::string_view name) const;

private:
    const char *const *m_namesAndValues;
};

/// Is told what an XML document is made of, in its order. Names are those in the document, prefix included.
struct XMLHandler {
    enum class Next { GoOn, Stop };

    virtual ~XMLHandler() = default;
    virtual void startElement(std::string_view name, const XMLAttributes &attributes) = 0;
    virtual void endElement(std::string_view name) = 0;
    /// A piece of character data, in UTF-8, with references to characters resolved.
    [[nodiscard]] virtual Next characters(QByteArrayView utf8) = 0;
};

/// Tells the handler about a document (of less than 2 GiB) until its end, its first error, or the handler's Stop. What
/// the document refers to is not read. References to entities of its own are left out in character data, and an error
/// in attributes that they make much larger; CDATA sections are left out; elements nested more than 1000 deep are an
/// error. Prefixes need not be declared. Encodings: UTF-8, UTF-16, ISO-8859-1, US-ASCII.
void parseXML(QByteArrayView document, XMLHandler &handler);

} // namespace Varlo
