// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <array>
#include <optional>
#include <QByteArrayView>
#include <string_view>
#include <variant>
#include <vector>

namespace Varlo {

struct GroupStart { };
struct GroupEnd { };
/// A backslash and letters; the space that ends it belongs to it.
struct ControlWord {
    std::string_view name;
    std::optional<int> parameter; ///< the nearest int where the file's number is beyond
};
/// A backslash and anything else.
struct ControlSymbol {
    char symbol;
};
/// Text in some code page; may end inside a character.
struct CodedText {
    QByteArrayView bytes;
};
struct EndOfFile { };
using RichTextToken = std::variant<GroupStart, GroupEnd, ControlWord, ControlSymbol, CodedText, EndOfFile>;

/// Cuts a Rich Text Format file into its tokens. Binary data (\binN) is passed over. The file may change meanwhile.
class RichTextScanner {
public:
    explicit RichTextScanner(const FileDescriptor &file);

    /// Asked before the first token is taken.
    [[nodiscard]] bool startsWith(std::string_view bytes);
    /// What the token refers to stays until the next one is asked for.
    [[nodiscard]] RichTextToken next();
    /// True once the file could not be read further; it then seems to end there.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

private:
    bool fill();
    std::optional<char> peek();
    void skip(qint64 byteCount);
    RichTextToken scanControl();
    ControlWord scanControlWord();
    std::optional<int> scanParameter();
    RichTextToken scanHexByte();
    RichTextToken scanText();

    const FileDescriptor &m_file;
    qint64 m_offset = 0; // in the file, of the byte behind the chunk
    std::vector<char> m_chunk;
    const char *m_at = nullptr; // in the chunk
    const char *m_end = nullptr;
    std::array<char, 32> m_name {}; // no known control word is longer
    char m_byte = 0; // the text of one escaped byte
    bool m_hasFailed = false;
};

} // namespace Varlo
