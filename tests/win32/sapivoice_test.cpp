#include "platform/win32/voice/sapivoice.h"

#include <condition_variable>
#include <mutex>

#include <gtest/gtest.h>

#include "platform/win32/automation.h"
#include "platform/win32/text.h"

namespace duskmarch {

namespace {

// What the voices of a test write down, and how the one of them is to behave that speaks now.
struct Studio {
  std::mutex mutex;
  std::condition_variable changed;
  std::vector<std::string> heard;
  int asked = 0;  // texts that a voice was given, said or not
  int made = 0;
  int lost = 0;  // so many of the voices that were made have gone
  bool hanging = false;

  void note(const std::string& line) {
    heard.push_back(line);
    changed.notify_all();
  }
  void order(bool hang) {
    const std::lock_guard guard(mutex);
    hanging = hang;
    changed.notify_all();
  }
  template <class Condition>
  void await(Condition condition) {
    std::unique_lock lock(mutex);
    EXPECT_TRUE(changed.wait_for(lock, std::chrono::seconds(30), condition));
  }
  void await(const std::vector<std::string>& lines) {
    await([&] { return heard.size() >= lines.size(); });
    const std::lock_guard guard(mutex);
    EXPECT_EQ(heard, lines);
  }
};

// An object whose members are all known by name.
class Named : public IDispatch {
 public:
  virtual ~Named() = default;
  HRESULT WINAPI QueryInterface(REFIID, void** object) override {
    *object = this;
    AddRef();
    return S_OK;
  }
  ULONG WINAPI AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&shares_)); }
  ULONG WINAPI Release() override {
    const LONG left = InterlockedDecrement(&shares_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }
  HRESULT WINAPI GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* id) override {
    name_ = utf8(*names);
    *id = 1;
    return S_OK;
  }
  HRESULT WINAPI Invoke(DISPID, REFIID, LCID, WORD kind, DISPPARAMS* given, VARIANT* result,
                        EXCEPINFO*, UINT*) override {
    return invoke(name_, kind, *given, result);
  }

 protected:
  virtual HRESULT invoke(const std::string& member, WORD kind, DISPPARAMS& given,
                         VARIANT* result) = 0;
  static HRESULT answer(VARIANT* result, long number) {
    result->vt = VT_I4;
    result->lVal = number;
    return S_OK;
  }
  static HRESULT answer(VARIANT* result, IDispatch* object) {
    result->vt = VT_DISPATCH;
    result->pdispVal = object;
    return S_OK;
  }

 private:
  LONG shares_ = 1;
  std::string name_;
};

const std::vector<std::wstring> descriptions = {L"Zoë", L"Anna", L"Zoë", L"Ἑλένη"};

class Token final : public Named {
 public:
  explicit Token(long number) : number_(number) {}

 protected:
  HRESULT invoke(const std::string& member, WORD, DISPPARAMS&, VARIANT* result) override {
    EXPECT_EQ(member, "GetDescription");
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(descriptions.at(static_cast<std::size_t>(number_)).c_str());
    return S_OK;
  }

 private:
  long number_;
};

class Tokens final : public Named {
 protected:
  HRESULT invoke(const std::string& member, WORD, DISPPARAMS& given, VARIANT* result) override {
    if (member == "Count") return answer(result, static_cast<long>(descriptions.size()));
    EXPECT_EQ(member, "Item");
    return answer(result, new Token(given.rgvarg[0].lVal));
  }
};

class FakeVoice final : public Named {
 public:
  FakeVoice(std::shared_ptr<Studio> studio, int number)
      : shared_(std::move(studio)), number_(number) {}

 protected:
  HRESULT invoke(const std::string& member, WORD kind, DISPPARAMS& given,
                 VARIANT* result) override {
    std::unique_lock lock(studio_.mutex);
    if (number_ <= studio_.lost) return RPC_E_DISCONNECTED;
    if (member == "GetVoices") return answer(result, new Tokens);
    if (member == "Voice" && kind == DISPATCH_PROPERTYGET) return answer(result, new Token(1));
    if (member == "Status") return E_FAIL;
    if (member == "Voice") {
      studio_.note(utf8(callmethod(*given.rgvarg[0].pdispVal, L"GetDescription").text()));
    }
    if (member == "Rate") studio_.note("rate " + std::to_string(given.rgvarg[0].lVal));
    if (member == "Speak") speak(given, lock);
    return S_OK;
  }

 private:
  void speak(DISPPARAMS& given, std::unique_lock<std::mutex>& lock) {
    ++studio_.asked;
    studio_.changed.notify_all();
    studio_.changed.wait(lock, [this] { return !studio_.hanging; });
    studio_.note(std::to_string(given.rgvarg[0].lVal) + " " + utf8(given.rgvarg[1].bstrVal));
  }

  std::shared_ptr<Studio> shared_;
  Studio& studio_ = *shared_;
  int number_;
};

class SapiVoices : public testing::Test {
 protected:
  static ComPtr<IDispatch> make(const std::shared_ptr<Studio>& studio) {
    const std::lock_guard guard(studio->mutex);
    ComPtr<IDispatch> made;
    *made.put() = new FakeVoice(studio, ++studio->made);
    return made;
  }

  std::shared_ptr<Studio> studio_ = std::make_shared<Studio>();
  std::shared_ptr<Mixer> mixer_ = std::make_shared<Mixer>();
  SapiVoice voice_{mixer_, [](std::string_view) {}, [studio = studio_] { return make(studio); }};
};

TEST_F(SapiVoices, OneThatHangsHoldsUpNobodyAndThenSaysTheLastText) {
  studio_->order(true);
  voice_.speak("first");
  studio_->await([this] { return studio_->asked == 1; });
  voice_.setrate(7);
  voice_.speak("second");
  voice_.speak("third");
  voice_.speakafter("fourth");
  EXPECT_EQ(voice_.voicenames().size(), 3u);
  EXPECT_TRUE(voice_.setvoice("Anna"));
  studio_->order(false);
  studio_->await({"19 first", "rate 7", "19 third", "17 fourth"});
}

TEST_F(SapiVoices, OneThatHasGoneIsMadeAgainAndSpeaksAsBefore) {
  voice_.setrate(3);
  ASSERT_TRUE(voice_.setvoice("Zoë"));
  voice_.speak("here");
  studio_->await({"Zoë", "rate 3", "19 here"});
  {
    const std::lock_guard guard(studio_->mutex);
    studio_->lost = 1;
  }
  voice_.speak("still here");
  studio_->await({"Zoë", "rate 3", "19 here", "Zoë", "rate 3", "19 still here"});
}

TEST_F(SapiVoices, AnotherDeviceIsSpokenThroughByAnotherVoice) {
  ASSERT_TRUE(voice_.setvoice("Anna"));
  voice_.speak("headphones");
  studio_->await({"Anna", "19 headphones"});
  mixer_->devicereplaced();
  voice_.speak("loudspeaker");
  voice_.speakafter("still");
  studio_->await({"Anna", "19 headphones", "Anna", "19 loudspeaker", "17 still"});
  EXPECT_EQ(studio_->made, 2);
}

TEST_F(SapiVoices, TheVoicesOfTheSystemAreThoseToChooseFrom) {
  EXPECT_TRUE(voice_.setvoice({}));  // which waits for the list
  EXPECT_EQ(voice_.voicenames(), (std::vector<std::string>{"Anna", "Zoë", "Ἑλένη"}));
  EXPECT_FALSE(voice_.setvoice("Nobody"));
  EXPECT_TRUE(voice_.setvoice("Ἑλένη"));
  voice_.speakafter("one");
  EXPECT_TRUE(voice_.setvoice({}));
  voice_.speakafter("two");
  studio_->await({"Ἑλένη", "17 one", "Anna", "17 two"});
}

}  // namespace

}  // namespace duskmarch
