#include "state/view_settings.h"

#include <vector>

namespace quorvin {

namespace {

struct Entry {
  QString key;
  QString text;
};

std::vector<Entry> entriesOf(const ViewSettings& settings) {
  return {{QStringLiteral("Columns"), settings.columns}};
}

QString viewSection() {
  return QStringLiteral("View");
}

}  // namespace

ViewSettings readViewSettings(const SettingsStore& store, const QString& application) {
  const auto read = [&](const QString& key) { return store.read(application, viewSection(), key, {}); };
  ViewSettings settings;
  settings.columns = read(QStringLiteral("Columns"));
  return settings;
}

void writeViewSettings(SettingsStore& store, const QString& application, const ViewSettings& settings) {
  const std::vector<Entry> kept = entriesOf(readViewSettings(store, application));
  const std::vector<Entry> wanted = entriesOf(settings);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (wanted[i].text == kept[i].text) continue;
    store.write(application, viewSection(), wanted[i].key, wanted[i].text);
  }
}

}  // namespace quorvin
