#include "platform/win32/accessiblename.h"

// First, for it makes the numbers of what is declared next.
#include <initguid.h>
#include <oleacc.h>

#include "platform/win32/com.h"

namespace duskmarch {

void nameforreaders(HWND part, const std::wstring& name) {
  ComPtr<IAccPropServices> services;
  if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IAccPropServices, services.putvoid()))) {
    return;
  }
  services->SetHwndPropStr(part, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                           name.c_str());
}

}  // namespace duskmarch
