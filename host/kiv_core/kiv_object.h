// The interface of every host object: COM's IUnknown (interface query first, reference counting
// second and third) and the handler the command proxy calls.
#pragma once
#include "kiv_core/kiv_value.h"
#include <unknwn.h>
#include <vector>

class IKivObject : public IUnknown {
public:
    // Runs command on this object. args is null when the caller passes no list; result is null
    // when the caller wants none. Called on the UI thread.
    virtual void OnCommand(const char* command, const std::vector<kiv_value::Value>* args,
                           kiv_value::Value* result) = 0;
};
