// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "extraction/supportedExtensions.h"
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

ExitCode run(const FormatsCommand &, Session &session)
{
    for (const FormatSection &section : formatSections()) {
        QString title = section.title.toUpper();
        if (section.isComingSoon)
            title += u" ("_s + QCoreApplication::translate("Formats", "Coming soon") + u')';
        QStringList extensions;
        for (const std::string_view extension : section.extensions)
            extensions.append(u'.' + QString::fromLatin1(extension.data(), static_cast<qsizetype>(extension.size())));
        session.terminal().print(title);
        session.terminal().print(u"  "_s + extensions.join(u' '));
    }
    return ExitCode::Success;
}

} // namespace Varlo
