// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Characters.h"
#include "suggestion/interpretReply.h"
#include <algorithm>

using namespace Varlo;
using namespace Qt::StringLiterals;

static void require(bool holds, const char *promise)
{
    if (!holds)
        qFatal("broken: %s", promise);
}

static bool isLegal(QChar character) { return character >= u' ' && !u"<>:\"/\\|?*"_s.contains(character); }

static void checkName(const QString &name)
{
    require(!name.isEmpty(), "a name has text");
    require(countCharacters(name, 121) <= 120, "a name has at most 120 characters");
    require(std::all_of(name.begin(), name.end(), isLegal), "a name is legal");
    require(name == name.simplified(), "a name has single spaces, inside alone");
}

static void checkTags(QStringList tags)
{
    require(tags.size() <= 5, "there are at most five tags");
    require(tags.removeDuplicates() == 0, "each tag stands once");
    for (const QString &tag : std::as_const(tags)) {
        require(!tag.isEmpty() && tag == tag.trimmed() && !tag.contains(u','), "a tag is trimmed text");
        require(countCharacters(tag, 31) <= 30, "a tag has at most 30 characters");
    }
}

// The first byte says whether tags are asked for, and whether the rest is UTF-8 or UTF-16 with whatever surrogates.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    QString reply = QString::fromUtf8(rest);
    if ((data[0] & 2) != 0) {
        reply = QString(rest.size() / 2, u'\0');
        std::copy_n(rest.constData(), reply.size() * 2, reinterpret_cast<char *>(reply.data()));
    }
    const bool includeTags = (data[0] & 1) != 0;
    const auto suggestion = interpretReply(reply, includeTags);
    require(suggestion || (suggestion.error() == ReplyError::NoReadableContent) == reply.contains("NO_CONTENT"_L1),
        "the marker and nothing else means no content");
    if (!suggestion)
        return 0;
    checkName(suggestion->name);
    checkTags(suggestion->tags);
    require(includeTags || suggestion->tags.isEmpty(), "tags come when asked for");
    return 0;
}
