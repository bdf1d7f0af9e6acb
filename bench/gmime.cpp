// Reading mails and base64 with GMime, whose library is loaded when it is there: Debian's headers
// for it cannot be installed beside 32-bit Wine.
#include "bench/gmime.h"

#include <dlfcn.h>

#include <array>
#include <cstdint>
#include <stdexcept>

namespace bench {
namespace {

void* Library() {
  static void* const library = ::dlopen("libgmime-3.0.so.0", RTLD_NOW);
  return library;
}

/// The function of the library, called with these arguments.
template <class Result, class... Arguments>
Result Call(const char* name, Arguments... arguments) {
  auto* const function = reinterpret_cast<Result (*)(Arguments...)>(::dlsym(Library(), name));
  if (!function) throw std::runtime_error(std::string("GMime has no ") + name);
  return function(arguments...);
}

void Decode(void*, void* part, void* bytes) {
  const auto kind = Call<std::size_t>("g_mime_part_get_type");
  if (!Call<int>("g_type_check_instance_is_a", part, kind)) return;
  void* const stream = Call<void*>("g_mime_stream_mem_new");
  Call<std::intptr_t>("g_mime_data_wrapper_write_to_stream",
                      Call<void*>("g_mime_part_get_content", part), stream);
  *static_cast<std::int64_t*>(bytes) += Call<std::int64_t>("g_mime_stream_length", stream);
  Call<void>("g_object_unref", stream);
}

std::string Coded(const std::string& text, const char* begin) {
  constexpr int base64 = 4;               // GMIME_CONTENT_ENCODING_BASE64
  std::array<std::uint64_t, 64> state{};  // Larger than any GMimeEncoding.
  Call<void>(begin, static_cast<void*>(state.data()), base64);
  std::string coded(
      Call<std::size_t>("g_mime_encoding_outlen", static_cast<void*>(state.data()), text.size()),
      '\0');
  coded.resize(Call<std::size_t>("g_mime_encoding_flush", static_cast<void*>(state.data()),
                                 text.data(), text.size(), coded.data()));
  return coded;
}

}  // namespace

bool HasGMime() {
  static const bool started = [] {
    if (Library()) Call<void>("g_mime_init");
    return Library() != nullptr;
  }();
  return started;
}

void ReadWithGMime(const std::string& mail) {
  void* const stream = Call<void*>("g_mime_stream_mem_new_with_buffer", mail.data(), mail.size());
  void* const parser = Call<void*>("g_mime_parser_new_with_stream", stream);
  void* const message =
      Call<void*>("g_mime_parser_construct_message", parser, static_cast<void*>(nullptr));
  std::int64_t bytes = 0;
  Call<void>("g_mime_message_foreach", message, &Decode, static_cast<void*>(&bytes));
  for (void* each : {message, parser, stream}) Call<void>("g_object_unref", each);
  if (bytes < std::int64_t{30} << 20) throw std::runtime_error("GMime has not read the mail");
}

std::string EncodedByGMime(const std::string& bytes) {
  return Coded(bytes, "g_mime_encoding_init_encode");
}

std::string DecodedByGMime(const std::string& letters) {
  return Coded(letters, "g_mime_encoding_init_decode");
}

}  // namespace bench
