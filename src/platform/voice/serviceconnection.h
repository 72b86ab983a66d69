// One connection to Speech Dispatcher.
#pragma once

#include <string>

#include <libspeechd.h>

namespace duskmarch {

// Every call but close() and the destructor may hang for as long as the service does. Shutting the
// socket down makes a call other than open() return.
class ServiceConnection {
 public:
  enum class Outcome { done, refused, lost };

  ServiceConnection() = default;
  ServiceConnection(const ServiceConnection&) = delete;
  ServiceConnection& operator=(const ServiceConnection&) = delete;
  ~ServiceConnection() { close(); }

  // Connects anew; starts the service first if that is wanted and needed. Returns what was wrong,
  // or an empty text.
  std::string open(bool startservice);
  void close();
  bool isopen() const { return connection_ != nullptr; }
  int socket() const;

  // Says `text` after what it was given before. A connection once lost stays so until it is opened.
  Outcome say(const std::string& text);
  // Stops what this connection was given to say.
  Outcome cancel();

 private:
  // What became of a call that failed.
  Outcome failure();
  // Tried by a harmless command.
  bool answers();

  SPDConnection* connection_ = nullptr;
};

// Whether the service listens, or could be started.
bool servicepresent();

}  // namespace duskmarch
