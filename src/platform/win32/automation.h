// Objects that are known by name, and so are all that they can do.
#pragma once

#include <string>
#include <string_view>

#include <windows.h>

#include "platform/win32/com.h"

namespace duskmarch {

// A value that such objects are given or give back.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(long number);
  // Throws PlatformError when there is no memory for it.
  explicit Variant(std::wstring_view text);
  Variant(Variant&& other) noexcept : Variant() { std::swap(value_, other.value_); }
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Variant() { VariantClear(&value_); }

  // As a number: no is 0, and what is none is `otherwise`.
  long number(long otherwise) const;
  // As a text; empty where it is none.
  std::wstring text() const;
  bool isno() const { return value_.vt == VT_BOOL && value_.boolVal == VARIANT_FALSE; }
  // The object that it is, or null.
  IDispatch* object() const { return value_.vt == VT_DISPATCH ? value_.pdispVal : nullptr; }
  // The same, where there has to be one: throws PlatformError.
  IDispatch& someobject() const;
  VARIANT* put() { return &value_; }

 private:
  VARIANT value_;
};

// Whether the system knows a kind of object by this name. Starts nothing.
bool objectknown(const wchar_t* name);
// Makes one. This and the next calls throw PlatformError, and may take as long as the object likes.
ComPtr<IDispatch> makeobject(const wchar_t* name);

void setproperty(IDispatch& object, const wchar_t* property, long value);
Variant getproperty(IDispatch& object, const wchar_t* property);
void setproperty(IDispatch& object, const wchar_t* property, IDispatch& value);
Variant callmethod(IDispatch& object, const wchar_t* method);
Variant callmethod(IDispatch& object, const wchar_t* method, long number);
Variant callmethod(IDispatch& object, const wchar_t* method, std::wstring_view text, long number);

}  // namespace duskmarch
