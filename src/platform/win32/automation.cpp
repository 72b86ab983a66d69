#include "platform/win32/automation.h"

#include <array>
#include <string>

#include "platform/win32/text.h"

namespace duskmarch {

namespace {

DISPID nameof(IDispatch& object, const wchar_t* member) {
  std::wstring name(member);
  wchar_t* names[] = {name.data()};
  DISPID id = DISPID_UNKNOWN;
  check(object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), utf8(member));
  return id;
}

Variant invoke(IDispatch& object, const wchar_t* member, WORD kind, DISPPARAMS parameters) {
  Variant result;
  const bool answers = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) == 0;
  check(object.Invoke(nameof(object, member), IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                      answers ? result.put() : nullptr, nullptr, nullptr),
        utf8(member));
  return result;
}

}  // namespace

Variant::Variant(long number) : Variant() {
  value_.vt = VT_I4;
  value_.lVal = number;
}

Variant::Variant(std::wstring_view text) : Variant() {
  value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (value_.bstrVal == nullptr) throw PlatformError("no memory for a text");
  value_.vt = VT_BSTR;
}

long Variant::number(long otherwise) const {
  Variant number;
  auto* from = const_cast<VARIANT*>(&value_);  // as older headers of the system have it
  const HRESULT result = VariantChangeType(number.put(), from, 0, VT_I4);
  return SUCCEEDED(result) ? number.value_.lVal : otherwise;
}

std::wstring Variant::text() const {
  if (value_.vt != VT_BSTR) return {};
  return {value_.bstrVal, SysStringLen(value_.bstrVal)};
}

IDispatch& Variant::someobject() const {
  if (object() == nullptr) throw PlatformError("an object is missing");
  return *object();
}

bool objectknown(const wchar_t* name) {
  CLSID kind;
  return SUCCEEDED(CLSIDFromProgID(name, &kind));
}

ComPtr<IDispatch> makeobject(const wchar_t* name) {
  CLSID kind;
  check(CLSIDFromProgID(name, &kind), utf8(name) + " is not known");
  ComPtr<IDispatch> object;
  check(CoCreateInstance(kind, nullptr, CLSCTX_ALL, IID_IDispatch, object.putvoid()),
        utf8(name) + " cannot be made");
  return object;
}

void setproperty(IDispatch& object, const wchar_t* property, long value) {
  Variant argument(value);
  DISPID put = DISPID_PROPERTYPUT;
  invoke(object, property, DISPATCH_PROPERTYPUT, {argument.put(), &put, 1, 1});
}

Variant getproperty(IDispatch& object, const wchar_t* property) {
  return invoke(object, property, DISPATCH_PROPERTYGET, {});
}

void setproperty(IDispatch& object, const wchar_t* property, IDispatch& value) {
  VARIANT argument;  // whose share stays the caller's
  argument.vt = VT_DISPATCH;
  argument.pdispVal = &value;
  DISPID put = DISPID_PROPERTYPUT;
  invoke(object, property, DISPATCH_PROPERTYPUTREF, {&argument, &put, 1, 1});
}

Variant callmethod(IDispatch& object, const wchar_t* method) {
  return invoke(object, method, DISPATCH_METHOD, {});
}

Variant callmethod(IDispatch& object, const wchar_t* method, long number) {
  Variant argument(number);
  return invoke(object, method, DISPATCH_METHOD, {argument.put(), nullptr, 1, 0});
}

Variant callmethod(IDispatch& object, const wchar_t* method, std::wstring_view text, long number) {
  // The last argument comes first.
  Variant last(number);
  Variant first(text);
  std::array arguments = {*last.put(), *first.put()};  // which stay theirs
  return invoke(object, method, DISPATCH_METHOD,
                {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0});
}

}  // namespace duskmarch
