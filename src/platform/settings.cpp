// SPDX-License-Identifier: MIT
#include "platform/settings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "base/find_row.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

std::unique_ptr<QSettings> store;

std::unique_ptr<QTemporaryDir> standIn;  // holds the settings of this run if the path is no file

void CloseStore() {
    store.reset();
    standIn.reset();
}

/// The file behind links; a temporary file if the path names something that is not a file.
QString PlainFile(const QString& path) {
    namespace fs = std::filesystem;
    const fs::path place = QFileInfo(path).filesystemFilePath();
    std::error_code error;
    if (fs::is_regular_file(place, error)) return Shown(ToText(fs::canonical(place, error)));
    if (!fs::exists(fs::symlink_status(place, error))) return path;
    std::fprintf(stderr,
                 "ornavo: the settings %s are no plain file; they count as empty and are not written\n",
                 qPrintable(path));
    standIn = std::make_unique<QTemporaryDir>();
    return standIn->filePath("settings.ini");
}

QString StandardFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/Ornavo/Ornavo for Quillmar's Jukebox 3.2.ini";
}

QSettings& Store() {
    if (!store) UseSettingsFile(StandardFile());
    return *store;
}

/// A section or key as one level of a QSettings path. Separators would add levels, and an empty level would
/// vanish.
QString Level(std::string_view name) {
    if (name.empty()) return QStringLiteral("%");
    QString level = Shown(name);
    level.replace('%', "%25").replace('/', "%2F").replace('\\', "%5C");
    return level;
}

/// The key as it is stored, in whatever case; the given one if it is not stored.
QString StoredKey(std::string_view section, std::string_view key) {
    const QString asked = Level(section) + '/' + Level(key);
    if (Store().contains(asked)) return asked;
    const QStringList keys = Store().allKeys();
    const QString* found =
        FindRowIf(keys, [&](const QString& there) { return there.compare(asked, Qt::CaseInsensitive) == 0; });
    return found ? *found : asked;
}

}  // namespace

std::string GetSetting(std::string_view section, std::string_view key, std::string_view standard) {
    const QVariant value = Store().value(StoredKey(section, key));
    if (!value.isValid()) return std::string(standard);
    // A comma that somebody typed into the file makes QSettings return a list.
    return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
    Store().setValue(StoredKey(section, key), Shown(value));
}

void DeleteSetting(std::string_view section, std::string_view key) {
    Store().remove(StoredKey(section, key));
}

void UseSettingsFile(const QString& path) {
    // Written to disk while the application still exists.
    static const bool once = (qAddPostRoutine(CloseStore), true);
    static_cast<void>(once);
    CloseStore();
    store = std::make_unique<QSettings>(PlainFile(path), QSettings::IniFormat);
    store->setFallbacksEnabled(false);
}

template <>
int Setting<int>::Read() const {
    return ToLong(ToNumber(GetSetting(section, key, NumberText(standard))));
}

template <>
void Setting<int>::Write(const int& value) const {
    SaveSetting(section, key, NumberText(value));
}

template <>
bool Setting<bool>::Read() const {
    const std::string text = GetSetting(section, key, standard ? "True" : "False");
    if (EqualText(text, "True")) return true;
    if (EqualText(text, "False")) return false;
    return ToNumber(text) != 0;
}

template <>
void Setting<bool>::Write(const bool& value) const {
    SaveSetting(section, key, value ? "True" : "False");
}

}  // namespace ornavo
