// SPDX-License-Identifier: GPL-2.0-or-later
#include "faults/runtime_fault.h"
#include "platform/byte_decoding.h"
#include "texts/texts.h"

#include <array>
#include <cerrno>
#include <iconv.h>
#include <utility>

namespace quorvin {

namespace {

/// No character of an encoding that has no states takes more bytes.
constexpr std::size_t kLongestCharacter = 4;

bool isNoConverter(iconv_t converter) {
  // The system has this value in place of null.
  return converter == reinterpret_cast<iconv_t>(-1);
}

}  // namespace

struct ByteDecoder::Converter {
  explicit Converter(const std::string& encoding) : handle(::iconv_open("UTF-8", encoding.c_str())) {
    if (!isNoConverter(handle)) return;
    const QString name = QString::fromStdString(encoding);
    if (errno != EINVAL) throw faultOfSystemError(errno, name);
    throw RuntimeFault(FaultNumber::InvalidProcedureCall,
                       Texts::tr("the system does not know the encoding \"%1\"").arg(name));
  }
  ~Converter() { ::iconv_close(handle); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  iconv_t handle;
};

ByteDecoder::ByteDecoder(const std::string& encoding) : converter_(std::make_unique<Converter>(encoding)) {}

ByteDecoder::~ByteDecoder() = default;

void ByteDecoder::append(std::string& text, std::string_view bytes) {
  std::string joined;
  if (!waiting_.empty()) {
    joined = std::exchange(waiting_, {});
    joined += bytes;
    bytes = joined;
  }
  std::array<char, 16384> output;
  // The converter does not change what it reads.
  char* next = const_cast<char*>(bytes.data());
  std::size_t left = bytes.size();
  while (left > 0) {
    char* end = output.data();
    std::size_t room = output.size();
    const std::size_t result = ::iconv(converter_->handle, &next, &left, &end, &room);
    const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
    text.append(output.data(), end);
    if (error == 0 || error == E2BIG) continue;
    if (error == EINVAL && left < kLongestCharacter) {
      waiting_.assign(next, left);
      return;
    }
    text += *next++;
    --left;
  }
}

void ByteDecoder::finish(std::string& text) {
  text += std::exchange(waiting_, {});
}

}  // namespace quorvin
