// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What renaming many files of one folder costs, each noted down and safe from a power cut, beside a bare loop of
// renameat2() without any of that, and beside a program that writes and syncs its whole history at every rename.
// usage: bench-rename [PAIRS [FILES]], in the folder that TMPDIR names. Exits with 1 where a target is missed.
#include "history/RenameLog.h"
#include "platform/linux/JsonPreferenceStore.h"
#include "platform/linux/replaceFile.h"
#include "platform/linux/SystemClock.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <QCoreApplication>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace Varlo;
using std::filesystem::path;

namespace {

constexpr double bareTarget = 3.0;
constexpr double arrayTarget = 0.15;
constexpr double memoryTarget = 512; // bytes of the process that a renamed file may still hold
constexpr qsizetype arrayBytes = 150'000; // a history of 1000 entries
constexpr std::size_t arrayShare = 20; // one file in so many goes through that phase, which would take minutes

[[noreturn]] void stop(const char *what)
{
    std::perror(what);
    std::exit(2);
}

double seconds(clockid_t clock)
{
    timespec now {};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Seconds a file.
struct Cost {
    double wall = 0;
    double processor = 0; ///< of the process, the kernel's work for it included
};

template <typename Phase> Cost measured(std::size_t files, const Phase &phase)
{
    const Cost start { seconds(CLOCK_MONOTONIC), seconds(CLOCK_PROCESS_CPUTIME_ID) };
    phase();
    const auto count = static_cast<double>(files);
    return { (seconds(CLOCK_MONOTONIC) - start.wall) / count,
        (seconds(CLOCK_PROCESS_CPUTIME_ID) - start.processor) / count };
}

double residentBytes()
{
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return static_cast<double>(pages * ::sysconf(_SC_PAGESIZE));
}

std::string oldName(std::size_t number) { return "scan_" + std::to_string(100'000 + number) + ".txt"; }
std::string newBase(std::size_t number) { return "Invoice of the water company " + std::to_string(100'000 + number); }

/// A new folder with files in it, all of it on the disk, so that no phase writes for another.
struct Place {
    explicit Place(std::size_t files)
        : root(directory.path().toStdString())
        , folder(root / "files")
    {
        std::filesystem::create_directory(folder);
        for (std::size_t number = 0; number < files; ++number)
            std::ofstream(folder / oldName(number)) << "small";
        ::sync();
    }
    QTemporaryDir directory;
    path root;
    path folder;
};

struct NoPanel final : FolderAccessPanel {
    [[nodiscard]] QCoro::Task<std::optional<path>> ask(path) override { co_return std::nullopt; }
};

/// Also says how many bytes the process grew by for each file.
Cost renamedByVarlo(std::size_t files, double &growth)
{
    const Place place(files);
    JsonPreferenceStore store(place.root / "preferences.json");
    Preferences preferences(store);
    const SystemClock clock;
    NoPanel panel;
    RenameJournal journal(place.root);
    FileRenamer renamer(journal, clock);
    FolderAccess access(preferences, panel);
    RenameLog log(preferences, renamer, access);
    std::vector<RenameRequest> requests;
    for (std::size_t number = 0; number < files; ++number)
        requests.push_back({ place.folder / oldName(number), QString::fromStdString(newBase(number)), std::nullopt });

    const double before = residentBytes();
    std::size_t renamed = 0;
    const Cost cost = measured(files, [&] {
        const auto action = log.beginAction();
        renamer.renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
            if (outcome) {
                ++renamed;
                log.record(requests[index].path, *outcome);
            }
            return FileRenamer::Next::GoOn;
        });
    });
    growth = (residentBytes() - before) / static_cast<double>(files);
    if (renamed != files || !journal.isEmpty())
        stop("not everything was renamed and stored");
    return cost;
}

struct NamePair {
    std::string from;
    std::string to;
};

std::vector<NamePair> namePairs(std::size_t files)
{
    std::vector<NamePair> names;
    for (std::size_t number = 0; number < files; ++number)
        names.push_back({ oldName(number), newBase(number) + ".txt" });
    return names;
}

void rename(int folder, const NamePair &names)
{
    if (::renameat2(folder, names.from.c_str(), folder, names.to.c_str(), RENAME_NOREPLACE) != 0)
        stop("renameat2");
}

Cost renamedBare(std::size_t files)
{
    const Place place(files);
    const std::vector<NamePair> names = namePairs(files);
    return measured(files, [&] {
        const FileDescriptor folder(::open(place.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        for (const NamePair &pair : names)
            rename(folder.get(), pair);
    });
}

/// As the preferences are written: a new file each time, so that a power cut leaves the old array or the new one.
Cost renamedWithArray(std::size_t files)
{
    const Place place(files);
    const std::vector<NamePair> names = namePairs(files);
    const QByteArray array(arrayBytes, '[');
    return measured(files, [&] {
        const FileDescriptor folder(::open(place.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        for (const NamePair &pair : names) {
            rename(folder.get(), pair);
            if (!replaceFile(place.root / "history", array))
                stop("history");
        }
    });
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Ratios {
    std::vector<double> wall;
    std::vector<double> processor;
    void add(const Cost &ours, const Cost &theirs)
    {
        wall.push_back(ours.wall / theirs.wall);
        processor.push_back(ours.processor / theirs.processor);
    }
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const int pairs = argumentCount > 1 ? std::atoi(arguments[1]) : 7;
    const std::size_t files = argumentCount > 2 ? std::strtoul(arguments[2], nullptr, 10) : 10'000;
    Ratios toBare;
    Ratios toArray;
    std::vector<double> microseconds;
    std::vector<double> growths;
    for (int pair = 0; pair < pairs; ++pair) {
        double growth = 0;
        const bool isBareFirst = pair % 2 == 0;
        Cost bare = isBareFirst ? renamedBare(files) : Cost {};
        const Cost ours = renamedByVarlo(files, growth);
        if (!isBareFirst)
            bare = renamedBare(files);
        toBare.add(ours, bare);
        toArray.add(ours, renamedWithArray(std::max<std::size_t>(files / arrayShare, 1)));
        microseconds.push_back(ours.wall * 1e6);
        growths.push_back(growth);
    }
    const double bare = median(toBare.wall);
    const double array = median(toArray.wall);
    const double growth = median(growths);
    std::printf("renaming %zu files: %.1f us each; %.2f times a bare loop (target %.1f; CPU %.2f), %.3f times writing "
                "the history at each (target %.2f; CPU %.2f); %.0f bytes more held for each (target %.0f)\n",
        files, median(microseconds), bare, bareTarget, median(toBare.processor), array, arrayTarget,
        median(toArray.processor), growth, memoryTarget);
    return bare > bareTarget || array > arrayTarget || growth > memoryTarget ? 1 : 0;
}
