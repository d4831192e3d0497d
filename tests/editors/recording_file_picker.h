// SPDX-License-Identifier: GPL-2.0-or-later

// A file picker for tests: it records the questions and gives the answer that was set.
#pragma once

#include "editors/file_picker.h"
#include "faults/runtime_fault.h"

#include <functional>
#include <vector>

namespace quorvin::test {

class RecordingFilePicker : public FilePicker {
 public:
  std::optional<QString> openFile(const FileQuestion& question) override {
    askedForFile.push_back(question);
    return answer();
  }
  QStringList openFiles(const FileQuestion& question) override {
    if (picks.isEmpty()) return FilePicker::openFiles(question);
    askedForFile.push_back(question);
    return picks;
  }
  std::optional<QString> pickFolder(const FileQuestion& question) override {
    askedForFolder.push_back(question);
    return answer();
  }
  QStringList pickFolders(const FileQuestion& question) override {
    if (picks.isEmpty()) return FilePicker::pickFolders(question);
    askedForFolder.push_back(question);
    return picks;
  }
  std::optional<QString> saveFile(const SaveQuestion& question) override {
    askedToSave.push_back(question);
    if (duringSave) duringSave();
    return answer();
  }

  std::vector<FileQuestion> askedForFile;
  std::vector<FileQuestion> askedForFolder;
  std::vector<SaveQuestion> askedToSave;
  /// What happens while the user chooses what to save as.
  std::function<void()> duringSave;
  /// What is picked next; nothing is a cancel.
  std::optional<QString> pick;
  /// Where several files or folders can be picked: these, unless there are none.
  QStringList picks;
  bool fails = false;

 private:
  std::optional<QString> answer() const {
    if (fails) throw RuntimeFault(FaultNumber::DeviceError);
    return pick;
  }
};

}  // namespace quorvin::test
