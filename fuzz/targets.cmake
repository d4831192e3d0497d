# SPDX-License-Identifier: GPL-2.0-or-later

# The fuzz targets, for the programs that fuzz and for the tests that replay the seeds. Each is made of TARGET_fuzz.cpp
# and of what is named here besides; the helpers are in fuzz/ or tests/.
set(QUORVIN_FUZZ_TARGETS
  archive
  date
  history_version
  list_import
  made_archive
  made_metafile
  metafile
  number
  peer_stream
  recovery_copy
  scan
  server_message
  settings_file
  source_list
  source_list_saving
  update_headers)

set(QUORVIN_FUZZ_HELPERS
  fuzz/drawing_check.cpp
  fuzz/drawing_maker.cpp
  fuzz/record_maker.cpp
  fuzz/record_maker_text.cpp
  fuzz/unpacking_check.cpp
  tests/archive/archive_maker.cpp
  tests/metafile/metafile_writer.cpp
  tests/search/quick_scan.cpp
  tests/support/plain_scan.cpp
  tests/support/reference_scan.cpp)
list(TRANSFORM QUORVIN_FUZZ_HELPERS PREPEND ${PROJECT_SOURCE_DIR}/)

# The program's libraries that are fuzzed: all but its windows.
set(QUORVIN_FUZZED_LIBRARIES
  quorvin_faults
  quorvin_dates
  quorvin_files
  quorvin_platform
  quorvin_http
  quorvin_bitmaps
  quorvin_state
  quorvin_work
  quorvin_search
  quorvin_history
  quorvin_index
  quorvin_catalogue
  quorvin_archive
  quorvin_update
  quorvin_peers
  quorvin_metafile_boundary
  quorvin_metafile_player)
