#include "platform/voice/serviceconnection.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace duskmarch {
namespace {

// Where the library looks for the service's program.
constexpr const char* programvariable = "SPEECHD_CMD";
constexpr const char* usualprogram = "/usr/bin/speech-dispatcher";

std::string taketext(char* text) {
  std::string taken = text == nullptr ? "no reason given" : text;
  std::free(text);
  return taken;
}

bool listens() {
  char* error = nullptr;
  SPDConnectionAddress* address = spd_get_default_address(&error);
  if (address == nullptr) {
    std::free(error);
    return false;
  }
  std::error_code ignored;
  const bool there = address->method != SPD_METHOD_UNIX_SOCKET ||
                     std::filesystem::exists(address->unix_socket_name, ignored);
  SPDConnectionAddress__free(address);
  return there;
}

}  // namespace

std::string ServiceConnection::open(bool startservice) {
  close();
  char* error = nullptr;
  // A connection without a thread of its own: we want no notifications.
  connection_ = spd_open2("duskmarch", "main", nullptr, SPD_MODE_SINGLE, nullptr,
                          startservice ? 1 : 0, &error);
  if (connection_ == nullptr) return taketext(error);
  if (answers()) return {};
  // It was taken by something that stands in for the service, or by one that is about to end.
  close();
  return "it does not answer";
}

void ServiceConnection::close() {
  if (connection_ == nullptr) return;
  spd_close(connection_);
  connection_ = nullptr;
}

int ServiceConnection::socket() const {
  return connection_->socket;
}

ServiceConnection::Outcome ServiceConnection::say(const std::string& text) {
  // Of the service's priorities the one whose texts queue up instead of replacing each other.
  return spd_say(connection_, SPD_MESSAGE, text.c_str()) < 0 ? failure() : Outcome::done;
}

ServiceConnection::Outcome ServiceConnection::cancel() {
  return spd_cancel(connection_) < 0 ? failure() : Outcome::done;
}

ServiceConnection::Outcome ServiceConnection::failure() {
  // The library tells a refusal and a lost connection by the same number.
  return answers() ? Outcome::refused : Outcome::lost;
}

bool ServiceConnection::answers() {
  return spd_execute_command(connection_, "SET SELF PRIORITY MESSAGE") == 0;
}

bool servicepresent() {
  const char* named = std::getenv(programvariable);
  return listens() || access(named == nullptr ? usualprogram : named, X_OK) == 0;
}

}  // namespace duskmarch
