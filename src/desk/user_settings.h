// The per-user settings store: corvane/corvane.ini in the user's configuration folder, one key for each
// application, section and key.
#pragma once

#include <QString>

#include "host/services.h"

namespace corvane::desk {

class UserSettings : public host::Settings {
 public:
  // [file] empty: the user's own.
  explicit UserSettings(QString file = {});
  std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& default_value) override;
  void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override;
  const QString& FileName() const { return file_; }

 private:
  QString file_;
};

}  // namespace corvane::desk
