// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/suggestionCell.h"

#include "cli/suggestNames.h"
#include "platform/visibleText.h"

namespace Varlo {

TableCell suggestionCell(const FileItem &item)
{
    const auto statusCell = [&item](Colour colour) { return TableCell { label(item.status), colour }; };
    return std::visit(Overloaded {
                          [&](FileItem::Suggested) {
                              return TableCell { visibleText(suggestedFileName(item)), Colour::Green };
                          },
                          [](const FileItem::Failed &failed) {
                              return TableCell { visibleMessage(failed.message), Colour::Red };
                          },
                          [&](FileItem::Pending) { return statusCell(Colour::Dim); },
                          [&](FileItem::Processing) { return statusCell(Colour::Dim); },
                          [&](FileItem::Renamed) { return statusCell(Colour::Dim); },
                          [&](FileItem::AlreadyRenamed) { return statusCell(Colour::Dim); },
                          [&](FileItem::NoTextFound) { return statusCell(Colour::Yellow); },
                          [&](FileItem::NotSupportedYet) { return statusCell(Colour::Yellow); },
                      },
        item.status);
}

} // namespace Varlo
