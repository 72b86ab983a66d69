// Stands in for the voice of Windows and for JAWS: a library whose two objects write what they are
// told to the file %SPEECH_LOG%, a line each. What they do is changed while the game runs, by files
// beside it: %SPEECH_LOG%.voice and %SPEECH_LOG%.jaws hold one word. "hang": a call does not return
// until that file has gone; "gone": every object fails for good, and none can be made; "deaf": a
// text is refused; "none": that, and no voice is listed; "long": the voice goes on speaking. The
// voice can be either of two.
#include <cstdio>
#include <iterator>
#include <span>
#include <string>

#include <windows.h>

#include "platform/win32/text.h"

namespace {

constexpr CLSID voice = {
    0x6c0f4a51, 0x2f0e, 0x4b6d, {0x9a, 0x11, 0x5d, 0x0c, 0x37, 0x6e, 0x80, 0x01}};
constexpr CLSID jaws = {
    0x6c0f4a51, 0x2f0e, 0x4b6d, {0x9a, 0x11, 0x5d, 0x0c, 0x37, 0x6e, 0x80, 0x02}};

constexpr const wchar_t* voicenames[] = {L"Low Voice", L"High Voice"};

enum Member : DISPID {
  rate = 1,
  speak,
  status,
  runningstate,
  voiceproperty,
  getvoices,
  saystring,
  count,
  item,
  getdescription
};

std::wstring logname() {
  wchar_t name[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"SPEECH_LOG", name, MAX_PATH);
  return name;
}

void note(const std::string& line) {
  if (FILE* log = _wfopen(logname().c_str(), L"ab")) {
    std::fprintf(log, "%s\n", line.c_str());
    std::fclose(log);
  }
}

std::string orderfor(bool thevoice) {
  char word[16] = "";
  if (FILE* order = _wfopen((logname() + (thevoice ? L".voice" : L".jaws")).c_str(), L"rb")) {
    word[std::fread(word, 1, sizeof word - 1, order)] = 0;
    std::fclose(order);
  }
  return word;
}

void hangwhiletold(bool thevoice) {
  while (orderfor(thevoice) == "hang") Sleep(10);
}

long numberin(VARIANTARG& argument) {
  VARIANT number;
  VariantInit(&number);
  return SUCCEEDED(VariantChangeType(&number, &argument, 0, VT_I4)) ? number.lVal : -999;
}

std::string textin(const VARIANTARG& argument) {
  if (argument.vt != VT_BSTR) return "no text";
  std::string line;
  for (const char letter : duskmarch::utf8({argument.bstrVal, SysStringLen(argument.bstrVal)})) {
    line += letter == '\n' ? std::string("\\n") : std::string(1, letter);
  }
  return line;
}

struct MemberName {
  const wchar_t* name;
  DISPID id;
};
constexpr MemberName ofvoice[] = {{L"Rate", rate},           {L"Speak", speak},
                                  {L"Status", status},       {L"RunningState", runningstate},
                                  {L"Voice", voiceproperty}, {L"GetVoices", getvoices}};
constexpr MemberName ofjaws[] = {{L"SayString", saystring}};
constexpr MemberName oflist[] = {{L"Count", count}, {L"Item", item}};
constexpr MemberName ofone[] = {{L"GetDescription", getdescription}};

// What all the objects do alike.
class Object : public IDispatch {
 public:
  explicit Object(std::span<const MemberName> members) : members_(members) {}
  virtual ~Object() = default;

  HRESULT WINAPI QueryInterface(REFIID kind, void** object) override {
    const bool known = kind == IID_IUnknown || kind == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&shares_)); }
  ULONG WINAPI Release() override {
    const LONG left = InterlockedDecrement(&shares_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }
  HRESULT WINAPI GetTypeInfoCount(UINT* number) override {
    *number = 0;
    return S_OK;
  }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* id) override {
    for (const MemberName& member : members_) {
      *id = member.id;
      if (lstrcmpiW(*names, member.name) == 0) return S_OK;
    }
    *id = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
  }

 private:
  std::span<const MemberName> members_;
  LONG shares_ = 1;
};

HRESULT answer(VARIANT& result, long number) {
  result.vt = VT_I4;
  result.lVal = number;
  return S_OK;
}

// Hands over a share.
HRESULT answer(VARIANT& result, IDispatch* object) {
  result.vt = VT_DISPATCH;
  result.pdispVal = object;
  return S_OK;
}

// One of the voices that the voice can be, and the list of them.
class OneVoice : public Object {
 public:
  explicit OneVoice(const wchar_t* name) : Object(ofone), name_(name) {}
  HRESULT WINAPI Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(name_);
    return S_OK;
  }
  const wchar_t* name() const { return name_; }

 private:
  const wchar_t* name_;
};

class VoiceList : public Object {
 public:
  VoiceList() : Object(oflist) {}
  HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result,
                        EXCEPINFO*, UINT*) override {
    const bool any = orderfor(true) != "none";
    if (id == count) return answer(*result, any ? static_cast<long>(std::size(voicenames)) : 0);
    const long number = given->cArgs == 1 ? numberin(given->rgvarg[0]) : -1;
    if (number < 0 || number >= static_cast<long>(std::size(voicenames))) return DISP_E_BADINDEX;
    return answer(*result, new OneVoice(voicenames[number]));
  }
};

class Speech : public Object {
 public:
  explicit Speech(bool thevoice)
      : Object(thevoice ? std::span<const MemberName>(ofvoice) : ofjaws), thevoice_(thevoice) {
    note(thevoice ? "voice" : "jaws");
  }

  HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* given, VARIANT* result,
                        EXCEPINFO*, UINT*) override {
    // Another one may be made when they are back, but this one has lost them.
    gone_ = gone_ || orderfor(thevoice_) == "gone";
    if (gone_) return RPC_E_DISCONNECTED;
    if (id == rate && kind == DISPATCH_PROPERTYPUT) return setrate(*given);
    if (id == voiceproperty && kind == DISPATCH_PROPERTYPUTREF) return setvoice(*given);
    if (id == getvoices) return answer(*result, new VoiceList);
    if (kind == DISPATCH_PROPERTYGET) return getstate(id, *result);
    if (kind != DISPATCH_METHOD || given->cArgs != 2) return DISP_E_BADPARAMCOUNT;
    return id == speak || id == saystring ? say(*given, result) : DISP_E_MEMBERNOTFOUND;
  }

 private:
  static HRESULT setrate(DISPPARAMS& given) {
    if (given.cArgs != 1 || given.cNamedArgs != 1 ||
        given.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
      return DISP_E_PARAMNOTOPTIONAL;
    }
    note("Rate " + std::to_string(numberin(given.rgvarg[0])));
    return S_OK;
  }
  static HRESULT setvoice(DISPPARAMS& given) {
    if (given.cArgs != 1 || given.rgvarg[0].vt != VT_DISPATCH) return DISP_E_TYPEMISMATCH;
    note("Voice " + duskmarch::utf8(static_cast<OneVoice*>(given.rgvarg[0].pdispVal)->name()));
    return S_OK;
  }
  HRESULT getstate(DISPID id, VARIANT& result) {
    if (id == voiceproperty && orderfor(true) == "none") return E_FAIL;
    if (id == voiceproperty) return answer(result, new OneVoice(voicenames[0]));
    if (id != status) return answer(result, orderfor(thevoice_) == "long" ? 2 : 1);
    AddRef();
    return answer(result, this);
  }
  HRESULT say(DISPPARAMS& given, VARIANT* result) const {
    hangwhiletold(thevoice_);
    const std::string order = orderfor(thevoice_);
    const bool heard = order != "deaf" && order != "none";
    if (heard) {
      note((thevoice_ ? "Speak(" : "SayString(") + std::to_string(numberin(given.rgvarg[0])) +
           ") " + textin(given.rgvarg[1]));
    }
    if (result != nullptr && !thevoice_) {
      result->vt = VT_BOOL;
      result->boolVal = heard ? VARIANT_TRUE : VARIANT_FALSE;
    }
    return heard || !thevoice_ ? S_OK : E_FAIL;
  }

  bool thevoice_;
  bool gone_ = false;
};

class Factory : public IClassFactory {
 public:
  explicit Factory(bool thevoice) : thevoice_(thevoice) {}
  virtual ~Factory() = default;

  HRESULT WINAPI QueryInterface(REFIID kind, void** object) override {
    const bool known = kind == IID_IUnknown || kind == IID_IClassFactory;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  // There for as long as the library.
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID kind, void** object) override {
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    hangwhiletold(thevoice_);
    if (orderfor(thevoice_) == "gone") return REGDB_E_CLASSNOTREG;
    auto* made = new Speech(thevoice_);
    const HRESULT found = made->QueryInterface(kind, object);
    made->Release();
    return found;
  }
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

 private:
  bool thevoice_;
};

}  // namespace

extern "C" __declspec(dllexport) HRESULT WINAPI
    DllGetClassObject(REFCLSID kind, REFIID face, void** object) {
  static Factory voices(true);
  static Factory jawses(false);
  if (kind == voice) return voices.QueryInterface(face, object);
  if (kind == jaws) return jawses.QueryInterface(face, object);
  return CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" __declspec(dllexport) HRESULT WINAPI DllCanUnloadNow() {
  return S_FALSE;
}
