// A speech service that notes what it is asked, and can be killed and frozen.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace duskmarch {

// Until `happened()` or for longer than any machine needs; what it was in the end.
template <class Condition>
bool eventually(Condition happened) {
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!happened()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::yield();
  }
  return true;
}

class FakeService {
 public:
  FakeService() {
    std::string pattern = std::filesystem::temp_directory_path() / "duskmarch-XXXXXX";
    folder_ = mkdtemp(pattern.data());
    setenv("SPEECHD_ADDRESS", ("unix_socket:" + path()).c_str(), 1);
    setenv("SPEECHD_CMD", "/nonexistent", 1);  // never the real one
  }
  ~FakeService() {
    kill();
    std::filesystem::remove_all(folder_);
  }

  void start() {
    listener_ = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{AF_UNIX, {}};
    path().copy(address.sun_path, sizeof address.sun_path - 1);
    bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(listener_, 20);
    alive_ = true;
    thread_ = std::thread([this] { serve(); });
  }
  void kill() {
    alive_ = false;
    if (!thread_.joinable()) return;
    thread_.join();
    close(listener_);
    for (const Client& client : clients_) close(client.socket);
    clients_.clear();
    std::filesystem::remove(path());
  }
  // Takes connections, but ends each at its first text or command.
  void refuse(bool refusing) { refusing_ = refusing; }
  // Answers everything, but says no text.
  void refusetexts(bool refusing) { refusingtexts_ = refusing; }
  int refusedtexts() const { return refusedtexts_; }
  int connections() const { return connections_; }
  void freeze(bool frozen) { frozen_ = frozen; }
  std::string path() const { return folder_ / "speechd.sock"; }
  // From now on whoever misses the service starts a program that fails; how often one did.
  void failtostart() {
    const std::filesystem::path program = folder_ / "program";
    std::ofstream(program) << "#!/bin/sh\nprintf x >>\"$0.starts\"\nexit 1\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    setenv("SPEECHD_CMD", program.c_str(), 1);
  }
  std::uintmax_t starts() const {
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(folder_ / "program.starts", none);
    return none ? 0 : size;
  }

  // Texts, and "CANCEL SELF" where it was told so.
  std::vector<std::string> asked() {
    const std::lock_guard guard(mutex_);
    return asked_;
  }

 private:
  struct Client {
    int socket = -1;
    std::optional<std::string> text;  // while one is being sent
    std::string unread;
  };

  void serve() {
    while (alive_) {
      std::vector<pollfd> polled{{listener_, POLLIN, 0}};
      for (const Client& client : clients_) polled.push_back({client.socket, POLLIN, 0});
      poll(polled.data(), polled.size(), 5);
      if (frozen_) continue;
      auto ready = polled.begin() + 1;
      std::erase_if(clients_,
                    [&](Client& client) { return ready++->revents != 0 && !read(client); });
      if (polled[0].revents == 0) continue;
      clients_.push_back({accept(listener_, nullptr, nullptr), {}, {}});
      ++connections_;
    }
  }
  // False once the client has gone.
  bool read(Client& client) {
    std::array<char, 4096> bytes{};
    const ssize_t count = recv(client.socket, bytes.data(), bytes.size(), 0);
    if (count <= 0 || refusing_) close(client.socket);
    if (count <= 0 || refusing_) return false;
    client.unread.append(bytes.data(), static_cast<std::size_t>(count));
    for (std::size_t end = 0; (end = client.unread.find("\r\n")) != std::string::npos;) {
      const std::string reply = answer(client, client.unread.substr(0, end));
      client.unread.erase(0, end + 2);
      send(client.socket, reply.data(), reply.size(), MSG_NOSIGNAL);
    }
    return true;
  }
  std::string answer(Client& client, const std::string& line) {
    if (client.text && line == "." && refusingtexts_) {
      client.text.reset();
      ++refusedtexts_;
      return "300 ERR INTERNAL\r\n";
    }
    if (client.text && line == ".") {
      note(*std::exchange(client.text, std::nullopt));
      return "225-1\r\n225 OK MESSAGE QUEUED\r\n";
    }
    if (client.text) {
      *client.text += line;
      return {};
    }
    if (line.starts_with("CANCEL")) note(line);
    if (line != "speak") return "200 OK\r\n";
    client.text.emplace();
    return "230 OK RECEIVING DATA\r\n";
  }
  void note(std::string what) {
    const std::lock_guard guard(mutex_);
    asked_.push_back(std::move(what));
  }

  std::filesystem::path folder_;
  int listener_ = -1;
  std::thread thread_;
  std::vector<Client> clients_;
  std::atomic<bool> alive_ = false;
  std::atomic<bool> frozen_ = false;
  std::atomic<bool> refusing_ = false;
  std::atomic<bool> refusingtexts_ = false;
  std::atomic<int> refusedtexts_ = 0;
  std::atomic<int> connections_ = 0;
  std::mutex mutex_;
  std::vector<std::string> asked_;
};

}  // namespace duskmarch
