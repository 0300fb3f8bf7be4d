// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include <QCoreApplication>
#include <QCoroTask>
#include <QJsonArray>
#include <QJsonObject>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

struct Finding {
    QString subject;
    bool isGood = true;
    QString detail;
    QString mend; ///< "" where nothing has to be done
};

} // namespace

static QString words(const char *text) { return QCoreApplication::translate("Doctor", text); }

/// Whether something could be stored in the folder, or in the nearest one above it that exists.
static Finding lookAtFolder(const QString &subject, const std::filesystem::path &folder)
{
    std::filesystem::path existing = folder;
    std::error_code error;
    while (!std::filesystem::exists(existing, error) && existing.has_relative_path())
        existing = existing.parent_path();
    const QString shown = visibleText(folder);
    if (std::filesystem::is_directory(existing, error) && ::access(existing.c_str(), W_OK | X_OK) == 0)
        return { subject, true, shown, {} };
    return { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "%1 cannot be written")).arg(shown),
        words(QT_TRANSLATE_NOOP("Doctor", "make %1 a folder of yours")).arg(visibleText(existing)) };
}

static Finding lookAtKey(Session &session, const Endpoint &endpoint)
{
    const QString subject = words(QT_TRANSLATE_NOOP("Doctor", "API key"));
    const auto key = QCoro::waitFor(session.keyStore(endpoint).loadKey());
    if (key)
        return { subject, true, words(QT_TRANSLATE_NOOP("Doctor", "stored for %1")).arg(endpoint.origin()), {} };
    switch (key.error()) {
    case SecretStore::Failure::NotFound:
        return { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "none for %1")).arg(endpoint.origin()),
            words(QT_TRANSLATE_NOOP("Doctor", "store one with `varlo key set`, or use --offline")) };
    case SecretStore::Failure::Locked:
        return { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "the keyring is locked")),
            words(QT_TRANSLATE_NOOP("Doctor", "unlock the keyring, for example by logging in to the desktop")) };
    case SecretStore::Failure::Unavailable:
        return { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "the secret store does not answer")),
            words(QT_TRANSLATE_NOOP("Doctor", "restart the desktop's keyring service")) };
    }
    Q_UNREACHABLE();
}

static QString lockedInWith(const SandboxLayers &layers)
{
    QStringList names;
    if (layers.landlockVersion > 0)
        names.append(u"Landlock %1"_s.arg(layers.landlockVersion));
    if (layers.filtersCalls)
        names.append(u"seccomp"_s);
    return names.join(u", ");
}

static Finding lookAtSandbox(const std::optional<SandboxLayers> &layers)
{
    const QString subject = words(QT_TRANSLATE_NOOP("Doctor", "Sandbox"));
    const QString names = lockedInWith(layers.value_or(SandboxLayers()));
    if (layers && layers->isComplete())
        return { subject, true, names, {} };
    const QString detail = names.isEmpty()
        ? words(QT_TRANSLATE_NOOP("Doctor", "files are read without one"))
        : words(QT_TRANSLATE_NOOP("Doctor", "files are read with %1 only")).arg(names);
    return { subject, false, detail,
        words(QT_TRANSLATE_NOOP("Doctor", "use a kernel of version 5.13 or newer with Landlock and seccomp")) };
}

static QStringList texts(const QJsonValue &array)
{
    QStringList list;
    for (const QJsonValue value : array.toArray())
        list.append(visibleText(value.toString()));
    return list;
}

static Finding lookAtRecognition(const QStringList &missingLanguages)
{
    const QString subject = words(QT_TRANSLATE_NOOP("Doctor", "Recognition"));
    if (missingLanguages.isEmpty())
        return { subject, true, words(QT_TRANSLATE_NOOP("Doctor", "English, Dutch, Spanish")), {} };
    QStringList packages;
    for (const QString &language : missingLanguages)
        packages.append(u"tesseract-ocr-"_s + language);
    return { subject, false,
        words(QT_TRANSLATE_NOOP("Doctor", "no language data for %1")).arg(missingLanguages.join(u", ")),
        words(QT_TRANSLATE_NOOP("Doctor", "install %1")).arg(packages.join(u' ')) };
}

static Finding lookAtPictures(const QStringList &missingFormats)
{
    const QString subject = words(QT_TRANSLATE_NOOP("Doctor", "Pictures"));
    if (missingFormats.isEmpty())
        return { subject, true, words(QT_TRANSLATE_NOOP("Doctor", "every format can be read")), {} };
    return { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "no decoder for %1")).arg(missingFormats.join(u", ")),
        words(QT_TRANSLATE_NOOP("Doctor", "install Qt's image formats, and libvips with its loaders")) };
}

/// By the word of a worker, locked in as those that read files are.
static QList<Finding> lookAtReaders(Session &session)
{
    const QString subject = words(QT_TRANSLATE_NOOP("Doctor", "Readers"));
    const auto report = QCoro::waitFor(session.reader().inspect());
    if (!report)
        return { { subject, false, report.error(), words(QT_TRANSLATE_NOOP("Doctor", "install Varlo again")) } };
    const QStringList missingParts = texts(report->findings[u"missingParts"_s]);
    QList<Finding> findings { lookAtSandbox(report->layers) };
    if (!missingParts.isEmpty())
        findings.append(
            { subject, false, words(QT_TRANSLATE_NOOP("Doctor", "not there: %1")).arg(missingParts.join(u", ")),
                words(QT_TRANSLATE_NOOP("Doctor", "install Varlo again, with the libraries that it names")) });
    findings.append(lookAtRecognition(texts(report->findings[u"missingLanguages"_s])));
    findings.append(lookAtPictures(texts(report->findings[u"missingFormats"_s])));
    return findings;
}

static QList<Finding> examine(const DoctorCommand &command, Session &session)
{
    QList<Finding> findings {
        lookAtFolder(words(QT_TRANSLATE_NOOP("Doctor", "Settings")), session.folders().config),
        lookAtFolder(words(QT_TRANSLATE_NOOP("Doctor", "State")), session.folders().state),
    };
    if (const std::optional<Endpoint> endpoint = session.endpoint(command.endpoint)) {
        findings.append({ words(QT_TRANSLATE_NOOP("Doctor", "Endpoint")), true,
            visibleText(endpoint->messagesUrl().toString()), {} });
        findings.append(lookAtKey(session, *endpoint)); // the store has said then which one it is
    } else {
        findings.append({ words(QT_TRANSLATE_NOOP("Doctor", "Endpoint")), false,
            words(QT_TRANSLATE_NOOP("Doctor", "it cannot be used")),
            words(QT_TRANSLATE_NOOP("Doctor", "give another one with `varlo config set endpoint URL`")) });
    }
    findings.append({ words(QT_TRANSLATE_NOOP("Doctor", "Secret store")), true,
        visibleText(session.secretStore().description()), {} });
    return findings + lookAtReaders(session);
}

ExitCode run(const DoctorCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    std::vector<TableRow> rows;
    bool isAllGood = true;
    for (const Finding &finding : examine(command, session)) {
        isAllGood = isAllGood && finding.isGood;
        if (command.json) {
            QJsonObject object { { u"subject"_s, finding.subject }, { u"good"_s, finding.isGood },
                { u"detail"_s, finding.detail } };
            if (!finding.mend.isEmpty())
                object.insert(u"mend"_s, finding.mend);
            terminal.printJson(object);
            continue;
        }
        const QString mend = finding.mend.isEmpty() ? QString() : u" – "_s + finding.mend;
        rows.push_back({ finding.isGood ? TableCell { u"ok"_s, Colour::Green } : TableCell { u"!"_s, Colour::Red },
            { finding.subject, Colour::Plain }, { finding.detail + mend, Colour::Plain } });
    }
    for (const TableRow &row : rows)
        terminal.print(row[0].text.leftJustified(3) + row[1].text.leftJustified(14) + row[2].text);
    return isAllGood ? ExitCode::Success : ExitCode::SomeFailed;
}

} // namespace Varlo
