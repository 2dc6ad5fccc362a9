#include "desk/user_settings.h"

#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include "desk/ansi_text.h"

namespace corvane::desk {

namespace {

// A name may hold the characters that part the names of a key.
QString Escaped(const std::string& name) {
  return QString::fromLatin1(QUrl::toPercentEncoding(ToLabel(name), " "));
}

QString KeyOf(const std::string& app, const std::string& section, const std::string& key) {
  return Escaped(app) + '/' + Escaped(section) + '/' + Escaped(key);
}

}  // namespace

UserSettings::UserSettings(QString file) : file_(std::move(file)) {
  if (file_.isEmpty())
    file_ = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/corvane/corvane.ini";
}

std::string UserSettings::GetSetting(const std::string& app, const std::string& section, const std::string& key,
                                     const std::string& default_value) {
  const QVariant value = QSettings(file_, QSettings::IniFormat).value(KeyOf(app, section, key));
  return value.isValid() ? FromLabel(value.toString()) : default_value;
}

void UserSettings::SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                               const std::string& value) {
  QSettings store(file_, QSettings::IniFormat);
  store.setValue(KeyOf(app, section, key), ToLabel(value));
  store.sync();
}

}  // namespace corvane::desk
