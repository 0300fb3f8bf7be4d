// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/supportedExtensions.h"

#include <QTest>

using namespace Varlo;

class SupportedExtensionsTest : public QObject {
    Q_OBJECT
private slots:
    void showsWhatIsRead();
};

void SupportedExtensionsTest::showsWhatIsRead()
{
    std::set<std::string_view> shown;
    for (const FormatSection &section : formatSections()) {
        QVERIFY(std::is_sorted(section.extensions.begin(), section.extensions.end()));
        for (const std::string_view extension : section.extensions) {
            QCOMPARE(supportedExtensions().contains(extension), !section.isComingSoon);
            QVERIFY2(shown.insert(extension).second, "shown twice");
        }
    }
    QCOMPARE(shown.size(), 38u + 6u + 6u); // fewer where one stands in two lists
    QCOMPARE(statedExtensionCount, 35);
}

QTEST_GUILESS_MAIN(SupportedExtensionsTest)
#include "tst_supportedExtensions.moc"
