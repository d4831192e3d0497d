#include "app/search_form_windows.h"

#include "app/fault_report.h"
#include "app/version.h"
#include "help/help_files.h"
#include "platform/standard_folders.h"

namespace quorvin {

namespace {

OptionsConditions optionsConditions(const QLocale& locale) {
  OptionsConditions conditions;
  conditions.locale = locale;
  conditions.programFolder = [] { return programFolder(); };
  return conditions;
}

ProductFacts productFacts() {
  const ProgramVersion version = programVersion();
  return {applicationTitle(), version.majorNumber, version.minorNumber, version.revision,
          applicationDescription()};
}

PreviewFaultReport previewReport(MessageBoxes& messages) {
  return [&messages](const QString& path, const RuntimeFault& fault) {
    messages.inform(faultReport(fault, QStringLiteral("loading the picture %1").arg(path)));
  };
}

}  // namespace

SearchFormWindows::SearchFormWindows(ProgramState& state, MessageBoxes& messages, SourceEditorHost& host,
                                     QWidget& owner, const QLocale& locale, FilePicker* picker)
    : owner_(owner),
      sources_({state, messages, picker ? *picker : systemPicker_, host}, &owner),
      options_({state, messages, picker ? *picker : systemPicker_, optionsConditions(locale)}, &owner),
      preview_(&owner, usualMetafileChild(), previewReport(messages)) {}

SearchFormWindows::~SearchFormWindows() = default;

void SearchFormWindows::AboutMenu_Click() {
  frmSplash splash(productFacts(), &owner_);
  splash_ = &splash;
  splash.exec();
}

void SearchFormWindows::HlpGen_Click() {
  showHelp(QStringLiteral("genhelp.htm"));
}

void SearchFormWindows::RelInfo_Click() {
  showHelp(QStringLiteral("relinfo.htm"));
}

void SearchFormWindows::showHelp(const QString& pageName) {
  if (!browser_) browser_ = std::make_unique<frmBrowser>(helpFolder(), transfer_);
  browser_->showHelp(helpPageAddress(pageName));
}

void SearchFormWindows::unloadSplash() {
  if (splash_) splash_->reject();
}

void SearchFormWindows::unloadBrowser() {
  if (browser_) browser_->close();
}

}  // namespace quorvin
