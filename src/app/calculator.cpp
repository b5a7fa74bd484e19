#include "app/calculator.h"

#include "app/window_host.h"
#include "session/persistence.h"
#include "store/state_file.h"

namespace brinto {

namespace {

// The window's geometry is a named record of its own, so the calculator's records never carry it.
constexpr u32 kFrontEndKind = 6;
constexpr std::u16string_view kGeometryName = u"window";

}  // namespace

Calculator::Calculator(WindowHost& host) : engine(&host), session(engine, host) {}

void Calculator::Start(const AppOptions& options) {
    if (options.memory) {
        // A calculator in memory starts on the defaults without asking anything.
        LoadSession(session, m_store, {}, m_trouble);
        return;
    }
    const StateLocations where = DefaultLocations();
    std::string warning;
    const OpenResult opened =
        OpenStateFile(m_store, options.db ? std::filesystem::path(*options.db) : where.database, warning);
    m_saving = opened == OpenResult::Opened;
    m_trouble = warning;
    std::string importWarning;
    m_firstRun = !LoadSession(session, m_store, where.legacyFile, importWarning);
    if (!importWarning.empty()) m_trouble += (m_trouble.empty() ? "" : "\n") + importWarning;
}

void Calculator::ChooseInputMethod(InputMethod method) {
    engine.prefs.SetMethod(method);
    u16& f = engine.state.engineFlags;
    f = static_cast<u16>(f & ~flags::MethodMask);
    if (method == InputMethod::Rpn) f |= flags::Rpn;
    if (method == InputMethod::Precedence) f |= flags::Precedence;
    engine.dirty.preferences = true;
    engine.dirty.state = true;
}

void Calculator::Save(const QByteArray& geometry) {
    if (!m_saving) return;
    SaveSession(session, m_store);
    if (geometry != m_geometry) {
        m_store.WriteRecord(kFrontEndKind, geometry.constData(), static_cast<std::size_t>(geometry.size()),
                            kGeometryName);
        m_geometry = geometry;
    }
}

QByteArray Calculator::SavedGeometry() {
    if (!m_saving) return {};
    QByteArray buffer(4096, '\0');
    std::size_t size = static_cast<std::size_t>(buffer.size());
    if (!m_store.ReadRecord(kFrontEndKind, buffer.data(), size, kGeometryName)) return {};
    buffer.resize(static_cast<qsizetype>(size));
    m_geometry = buffer;
    return buffer;
}

}  // namespace brinto
