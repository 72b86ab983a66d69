// What a screen reader finds in the game's windows, and what the system does to them, for a test
// in another process. Reads commands from standard input, a line each, and answers each with one
// line of JSON: `state`; `close`; `endsession`; `hold FILE`, `letgo`; `crash`; `sentkeys`, the keys
// that programs have sent since it was asked for the first time; and, with a TAB between their
// words, `value KEY NAME`, `setvalue KEY NAME TEXT` and `forget KEY` for the registry.
#include <cstdio>
#include <iostream>
#include <mutex>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "platform/win32/text.h"

namespace {

using duskmarch::utf8;

std::string quoted(const std::wstring& text) {
  std::string json = "\"";
  for (const char letter : utf8(text)) {
    if (letter == '"' || letter == '\\') json += '\\';
    if (static_cast<unsigned char>(letter) < ' ') {
      char code[8];
      std::snprintf(code, sizeof code, "\\u%04x", letter);
      json += code;
    } else {
      json += letter;
    }
  }
  return json + '"';
}

// What the window answers; 0 from one that hangs.
std::size_t answerof(HWND window, UINT message, WPARAM first, LPARAM second) {
  constexpr UINT patience = 5000;  // milliseconds
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, patience, &answer);
  return answer;
}

// As a reader gets it, by message.
std::wstring textof(HWND window) {
  const std::size_t size = answerof(window, WM_GETTEXTLENGTH, 0, 0);
  std::wstring text(size + 1, L'\0');
  text.resize(answerof(window, WM_GETTEXT, size + 1, reinterpret_cast<LPARAM>(text.data())));
  return text;
}

std::wstring classof(HWND window) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  return name;
}

DWORD caretof(HWND window) {
  DWORD start = 0;
  DWORD end = 0;
  answerof(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return end;
}

std::string described(HWND window) {
  RECT area{};
  RECT inner{};
  GetWindowRect(window, &area);
  GetClientRect(window, &inner);
  return "{\"class\":" + quoted(classof(window)) + ",\"text\":" + quoted(textof(window)) +
         ",\"style\":" + std::to_string(static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE))) +
         ",\"caret\":" + std::to_string(caretof(window)) + ",\"area\":[" +
         std::to_string(area.left) + ',' + std::to_string(area.top) + ',' +
         std::to_string(area.right) + ',' + std::to_string(area.bottom) + "],\"inner\":[" +
         std::to_string(inner.right) + ',' + std::to_string(inner.bottom) + "]";
}

BOOL CALLBACK addchild(HWND window, LPARAM list) {
  auto& json = *reinterpret_cast<std::string*>(list);
  if (IsWindowVisible(window) != 0)
    json += (json.back() == '[' ? "" : ",") + described(window) + '}';
  return TRUE;
}

BOOL CALLBACK addtop(HWND window, LPARAM list) {
  auto& json = *reinterpret_cast<std::string*>(list);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  DWORD games = 0;
  GetWindowThreadProcessId(FindWindowW(L"Duskmarch", nullptr), &games);
  if (process != games || IsWindowVisible(window) == 0) return TRUE;
  json += (json.back() == '[' ? "" : ",") + described(window) + ",\"parts\":[";
  EnumChildWindows(window, addchild, list);
  json += "]}";
  return TRUE;
}

std::string state() {
  HWND game = FindWindowW(L"Duskmarch", nullptr);
  if (game == nullptr) return "{\"windows\":[],\"focus\":null}";
  std::string json = "{\"windows\":[";
  EnumWindows(addtop, reinterpret_cast<LPARAM>(&json));
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(game, nullptr), &thread);
  json += "],\"focus\":";
  return json + (thread.hwndFocus != nullptr ? described(thread.hwndFocus) + "}" : "null") + "}";
}

std::string endsession() {
  HWND game = FindWindowW(L"Duskmarch", nullptr);
  if (answerof(game, WM_QUERYENDSESSION, 0, 0) == 0) return "false";
  answerof(game, WM_ENDSESSION, TRUE, 0);
  return "true";
}

// In a thread of its own, as an error that nobody thought of.
std::string crash() {
  DWORD id = 0;
  GetWindowThreadProcessId(FindWindowW(L"Duskmarch", nullptr), &id);
  HANDLE game = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
  const auto nocode = reinterpret_cast<LPTHREAD_START_ROUTINE>(16);
  HANDLE thread = CreateRemoteThread(game, nullptr, 0, nocode, nullptr, 0, nullptr);
  CloseHandle(thread);
  CloseHandle(game);
  return thread != nullptr ? "true" : "false";
}

// Written by the thread that the system tells of all keys.
std::mutex sentmutex;
std::string sent;

LRESULT CALLBACK keyseen(int code, WPARAM message, LPARAM details) {
  const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(details);
  if (code == HC_ACTION && (key.flags & LLKHF_INJECTED) != 0) {
    const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    const std::lock_guard guard(sentmutex);
    sent +=
        (sent.empty() ? "\"" : ",\"") + std::to_string(key.vkCode) + (down ? " down\"" : " up\"");
  }
  return CallNextHookEx(nullptr, code, message, details);
}

void watchkeys(HANDLE watching) {
  SetWindowsHookExW(WH_KEYBOARD_LL, keyseen, GetModuleHandleW(nullptr), 0);
  SetEvent(watching);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

std::string sentkeys() {
  static HANDLE watching = nullptr;
  if (watching == nullptr) {
    watching = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread(watchkeys, watching).detach();
    WaitForSingleObject(watching, INFINITE);
  }
  const std::lock_guard guard(sentmutex);
  return "[" + sent + "]";
}

// Sends a letter that no key stands behind, as braille keyboards do.
std::string dictate(char letter) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = static_cast<WORD>(letter);
  input.ki.dwFlags = KEYEVENTF_UNICODE;
  return SendInput(1, &input, sizeof input) == 1 ? "true" : "false";
}

// A key by its whole name, such as HKCU\Software\Wine.
struct RegistryKey {
  HKEY root;
  std::wstring path;
};
RegistryKey registrykey(std::string_view name) {
  const std::size_t backslash = name.find('\\');
  return {name.substr(0, backslash) == "HKCU" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
          duskmarch::utf16(name.substr(backslash + 1))};
}

std::string value(const std::string& key, const std::string& name) {
  const auto [root, path] = registrykey(key);
  wchar_t text[512];
  DWORD bytes = sizeof text;
  const LSTATUS error = RegGetValueW(root, path.c_str(), duskmarch::utf16(name).c_str(),
                                     RRF_RT_REG_SZ, nullptr, text, &bytes);
  return error == ERROR_SUCCESS ? quoted(text) : "null";
}

std::string setvalue(const std::string& key, const std::string& name, const std::string& newtext) {
  const auto [root, path] = registrykey(key);
  const std::wstring text = duskmarch::utf16(newtext);
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  const LSTATUS error = RegSetKeyValueW(root, path.c_str(), duskmarch::utf16(name).c_str(), REG_SZ,
                                        text.c_str(), bytes);
  return error == ERROR_SUCCESS ? "true" : "false";
}

// With all keys below it.
std::string forget(const std::string& key) {
  const auto [root, path] = registrykey(key);
  return RegDeleteTreeW(root, path.c_str()) == ERROR_SUCCESS ? "true" : "false";
}

std::vector<std::string> wordsof(const std::string& command) {
  std::vector<std::string> words;
  std::istringstream line(command);
  for (std::string word; std::getline(line, word, '\t');) words.push_back(word);
  return words;
}

// Empty for what is no command about the registry.
std::string registryanswer(const std::string& command) {
  const std::vector<std::string> words = wordsof(command);
  if (words.size() == 3 && words[0] == "value") return value(words[1], words[2]);
  if (words.size() == 4 && words[0] == "setvalue") return setvalue(words[1], words[2], words[3]);
  if (words.size() == 2 && words[0] == "forget") return forget(words[1]);
  return "";
}

}  // namespace

int main() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  HANDLE held = INVALID_HANDLE_VALUE;
  std::string command;
  while (std::getline(std::cin, command)) {
    std::string answer = "true";
    if (command == "state") {
      answer = state();
    } else if (command == "close") {
      PostMessageW(FindWindowW(L"Duskmarch", nullptr), WM_CLOSE, 0, 0);
    } else if (command == "endsession") {
      answer = endsession();
    } else if (command.rfind("hold ", 0) == 0) {
      // As a program that lets others read and write the file, but not put another in its place.
      held = CreateFileW(duskmarch::utf16(command.substr(5)).c_str(), GENERIC_READ,
                         FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
      answer = held != INVALID_HANDLE_VALUE ? "true" : "false";
    } else if (command == "letgo") {
      CloseHandle(held);
    } else if (command == "crash") {
      answer = crash();
    } else if (command.rfind("dictate ", 0) == 0) {
      answer = dictate(command.back());
    } else if (command == "sentkeys") {
      answer = sentkeys();
    } else {
      answer = registryanswer(command);
      if (answer.empty()) answer = "\"what?\"";
    }
    std::cout << answer << std::endl;
  }
}
