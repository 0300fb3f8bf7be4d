// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/collectXMLText.h"

#include "extraction/office/TextElementCollector.h"

namespace Varlo {

QString collectXMLText(QByteArrayView part)
{
    TextElementCollector collector;
    parseXML(part, collector);
    return collector.texts().join(u' ');
}

} // namespace Varlo
