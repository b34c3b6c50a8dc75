// SPDX-License-Identifier: MIT
#include "platform/settings.h"

#include <QCoreApplication>
#include <QSettings>
#include <memory>

#include "base/numbers.h"
#include "base/text.h"

namespace ornavo {
namespace {

std::unique_ptr<QSettings> store;

void CloseStore() {
    store.reset();
}

void Keep(std::unique_ptr<QSettings> settings) {
    // Written out while the application still lives.
    static const bool once = (qAddPostRoutine(CloseStore), true);
    static_cast<void>(once);
    store = std::move(settings);
    store->setFallbacksEnabled(false);
}

QSettings& Store() {
    if (!store)
        Keep(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "Ornavo",
                                         "Ornavo for Quillmar's Jukebox 3.2"));
    return *store;
}

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// One level of a path in the store. Separators would make more of it, and an empty one would vanish.
QString Level(std::string_view name) {
    if (name.empty()) return QStringLiteral("%");
    QString level = Shown(name);
    level.replace('%', "%25").replace('/', "%2F").replace('\\', "%5C");
    return level;
}

/// The key as it stands in the store, whatever its case; the given one where there is none.
QString StoredKey(std::string_view section, std::string_view key) {
    const QString asked = Level(section) + '/' + Level(key);
    if (Store().contains(asked)) return asked;
    const QStringList keys = Store().allKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const QString& there) {
        return there.compare(asked, Qt::CaseInsensitive) == 0;
    });
    return found == keys.end() ? asked : *found;
}

}  // namespace

std::string GetSetting(std::string_view section, std::string_view key, std::string_view standard) {
    const QVariant value = Store().value(StoredKey(section, key));
    if (!value.isValid()) return std::string(standard);
    // A comma that somebody typed into the file makes a list of it.
    return value.toStringList().join(QStringLiteral(", ")).toStdString();
}

void SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
    Store().setValue(StoredKey(section, key), Shown(value));
}

void DeleteSetting(std::string_view section, std::string_view key) {
    Store().remove(StoredKey(section, key));
}

void UseSettingsFile(const QString& path) {
    Keep(std::make_unique<QSettings>(path, QSettings::IniFormat));
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
