#include "tests/mapi/provider/provider.h"

#include <set>
#include <sstream>
#include <utility>

#include "qel/mail/private/simplemapi.h"

namespace {

/// Numbers and texts, separated by blanks; a null pointer is "-".
template <class... Fields>
std::string List(const Fields&... fields) {
  std::ostringstream list;
  const char* before = "";
  const auto put = [&](const auto& field) {
    list << std::exchange(before, " ");
    if constexpr (std::is_pointer_v<std::decay_t<decltype(field)>>) {
      if (!field) return void(list << '-');
      list << '\'' << field << '\'';
    } else {
      list << field;
    }
  };
  (put(fields), ...);
  return list.str();
}

unsigned long Answer(const std::string& entry, const std::string& arguments) {
  TProvider& provider = Provider();
  provider.Calls.push_back(entry + ' ' + arguments);
  if (const auto call = std::exchange(provider.During[entry], nullptr)) call();
  auto& results = provider.Results[entry];
  if (results.empty()) return SUCCESS_SUCCESS;
  const unsigned long result = results.front();
  results.pop_front();
  return result;
}

struct TBlock {
  MapiRecipDesc Record{};
  std::string Name;
};

std::set<void*> Handed;

}  // namespace

TProvider& Provider() {
  static TProvider provider;
  return provider;
}

extern "C" {

ULONG WINAPI MAPILogon(ULONG_PTR parent, LPSTR profile, LPSTR password, FLAGS flags, ULONG reserved,
                       LPLHANDLE session) {
  const auto result = Answer("Logon", List(parent, profile, password, flags, reserved));
  *session = result ? 99 : 7;  // What a failed call leaves means nothing.
  return result;
}

ULONG WINAPI MAPILogoff(LHANDLE session, ULONG_PTR parent, FLAGS flags, ULONG reserved) {
  return Answer("Logoff", List(session, parent, flags, reserved));
}

ULONG WINAPI MAPISendMail(LHANDLE session, ULONG_PTR parent, lpMapiMessage mail, FLAGS flags,
                          ULONG reserved) {
  std::string call = List(session, parent, flags, reserved) + " {" +
                     List(mail->ulReserved, mail->lpszSubject, mail->lpszNoteText,
                          mail->lpszMessageType, mail->lpszDateReceived, mail->lpszConversationID,
                          mail->flFlags, mail->lpOriginator, mail->nRecipCount) +
                     (mail->lpRecips ? "" : " -");
  for (ULONG i = 0; i < mail->nRecipCount; ++i) {
    const MapiRecipDesc& each = mail->lpRecips[i];
    call += " {" +
            List(each.ulReserved, each.ulRecipClass, each.lpszName, each.lpszAddress,
                 each.ulEIDSize, each.lpEntryID) +
            "}";
  }
  call += " " + List(mail->nFileCount) + (mail->lpFiles ? "" : " -");
  for (ULONG i = 0; i < mail->nFileCount; ++i) {
    const MapiFileDesc& each = mail->lpFiles[i];
    call += " {" +
            List(each.ulReserved, each.flFlags, static_cast<LONG>(each.nPosition),
                 each.lpszPathName, each.lpszFileName, each.lpFileType) +
            "}";
  }
  return Answer("Send", call + "}");
}

ULONG WINAPI MAPIResolveName(LHANDLE session, ULONG_PTR parent, LPSTR name, FLAGS flags,
                             ULONG reserved, lpMapiRecipDesc* found) {
  const auto result = Answer("Resolve", List(session, parent, name, flags, reserved));
  if (result != SUCCESS_SUCCESS) return result;
  auto* block = new TBlock;
  const auto known = Provider().Names.find(name);
  block->Name = known == Provider().Names.end() ? name : known->second;
  block->Record.lpszName = block->Name.data();
  Handed.insert(*found = &block->Record);
  Provider().Blocks++;
  return result;
}

ULONG WINAPI MAPIFreeBuffer(LPVOID block) {
  if (!Handed.erase(block)) return Provider().WrongFrees++, MAPI_E_FAILURE;
  Provider().Blocks--;
  delete reinterpret_cast<TBlock*>(block);
  return SUCCESS_SUCCESS;
}

/// In the place of the entry points that nobody calls.
void Unused() {}

}  // extern "C"
