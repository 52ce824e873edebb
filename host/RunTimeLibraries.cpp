#include "RunTimeLibraries.h"

#include "HostServices.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QScopeGuard>

#if defined(Q_OS_UNIX)
#include <dlfcn.h>
#endif

namespace {

bool IsNameCharacter(QChar character)
{
    return character.unicode() < 128 && (character.isLetterOrNumber() || character == u'_');
}

// Empty for a text that is no library's name.
QString BareName(const QString& library)
{
    const QString name = library.endsWith(QLatin1String(".dll"), Qt::CaseInsensitive)
                             ? library.chopped(int(sizeof(".dll")) - 1)
                             : library;
    return std::all_of(name.begin(), name.end(), IsNameCharacter) ? name : QString();
}

QString PlatformFile(const QString& name)
{
#if defined(Q_OS_WIN)
    return name + QStringLiteral(".dll");
#elif defined(Q_OS_MACOS)
    return QStringLiteral("lib") + name + QStringLiteral(".dylib");
#else
    return QStringLiteral("lib") + name + QStringLiteral(".so");
#endif
}

} // namespace

THostLibraries::THostLibraries(const QString& folder) : folder_(folder)
{
}

THostLibraries::~THostLibraries() = default;

QString THostLibraries::DefaultFolder()
{
#if defined(Q_OS_UNIX)
    static const char inThisLibrary = 0;
    Dl_info place{};
    if (dladdr(&inThisLibrary, &place) != 0)
        return QFileInfo(QFile::decodeName(place.dli_fname)).absolutePath();
#endif
    return QCoreApplication::applicationDirPath();
}

// The whole path, and only of a file that is there: a bare name would be sought along the system's paths.
QString THostLibraries::FileOf(const QString& library) const
{
    const QString name = BareName(library);
    if (name.isEmpty() || folder_.isEmpty())
        return {};
    const QFileInfo file(QDir(folder_), PlatformFile(name));
    return file.isFile() ? file.absoluteFilePath() : QString();
}

THostLibraries::THandle THostLibraries::Tarva_LoadLibrary(const QString& library)
{
    const QString file = FileOf(library);
    if (file.isEmpty())
        return 0;
    auto loaded = std::make_unique<QLibrary>(file);
    loaded->setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loaded->load()) {
        qWarning("%s", qPrintable(loaded->errorString()));
        return 0;
    }
    libraries_.emplace(++lastHandle_, std::move(loaded));
    return lastHandle_;
}

void THostLibraries::Tarva_FreeLibrary(const QString& /*library*/, THandle handle)
{
    libraries_.erase(handle);
}

QFunctionPointer THostLibraries::FindFunction(THandle handle, const QByteArray& function)
{
    const auto found = libraries_.find(handle);
    return found != libraries_.end() && !function.isEmpty() ? found->second->resolve(function.constData())
                                                            : nullptr;
}

int THostLibraries::Run_DLL_FuncReturnInt(const QString& library, const QString& function)
{
    const THandle handle = Tarva_LoadLibrary(library);
    if (handle == 0) {
        Host().Messages.ShowMessage(
            QStringLiteral("کتابخانهٔ «%1» پیدا نشد یا بار نشد؛ این کار انجام نشد.").arg(library));
        return 0;
    }
    const auto free = qScopeGuard([&] { Tarva_FreeLibrary(library, handle); });
    const QFunctionPointer found = FindFunction(handle, function.toLatin1());
    if (found == nullptr) {
        Host().Messages.ShowMessage(
            QStringLiteral("کتابخانهٔ «%1» عملیات «%2» را ندارد؛ این کار انجام نشد.").arg(library, function));
        return 0;
    }
    return reinterpret_cast<int (*)()>(found)();
}
