#include "app/calculator.h"

#include <span>

#include "app/window_host.h"

namespace brinto {

namespace {

constexpr std::string_view kGeometry = "window";

}  // namespace

Calculator::Calculator(WindowHost& host) : session(engine, host), store(session) {}

StartOutcome Calculator::Start(const AppOptions& options) {
    const StoreLocation where = options.memory ? StoreLocation::Memory()
                                : options.db   ? StoreLocation::File(*options.db)
                                               : StoreLocation::Default();
    return store.Start(where);
}

bool Calculator::Save(const QByteArray& geometry) {
    store.SetFrontEndSetting(kGeometry, std::as_bytes(std::span(geometry.constData(), geometry.size())));
    return store.Save();
}

QByteArray Calculator::SavedGeometry() const {
    const auto saved = store.FrontEndSetting(kGeometry);
    if (!saved) return {};
    return QByteArray(reinterpret_cast<const char*>(saved->data()), static_cast<qsizetype>(saved->size()));
}

}  // namespace brinto
