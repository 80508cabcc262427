#include "platform/EndSignals.h"

class EndSignals::Watch
{
};

void EndSignals::holdBack() {}

EndSignals::EndSignals(std::function<void()> /*last*/) {}

EndSignals::~EndSignals() = default;
