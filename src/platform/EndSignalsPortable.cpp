#include "platform/EndSignals.h"

class EndSignals::Watch
{
};

void EndSignals::holdBack() {}

// Nothing ever calls it here.
EndSignals::EndSignals(std::function<void()> last)
{
    const std::function<void()> dropped = std::move(last);
}

EndSignals::~EndSignals() = default;
