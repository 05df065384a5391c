#pragma once

namespace lumigrafo {

/// Switches the machine off or restarts it. Both return at once; the system then ends this process.
class Alimentazione {
public:
    virtual ~Alimentazione() = default;
    virtual void spegni() = 0;
    virtual void riavvia() = 0;
};

} // namespace lumigrafo
