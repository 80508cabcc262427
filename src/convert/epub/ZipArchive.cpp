#include "convert/epub/ZipArchive.h"

#include "platform/Errors.h"

#include <QList>
#include <exception>
#ifdef Q_OS_WIN
#define ZIP_STATIC // it is part of the program there
#endif
#include <zip.h>

struct ZipArchive::Library {
    zip_source_t *target = nullptr;
    zip_t *archive = nullptr;
    QList<QByteArray> contents; // the library takes no copies

    ~Library()
    {
        if (archive != nullptr)
            zip_discard(archive);
        if (target != nullptr)
            zip_source_free(target);
    }
};

namespace
{
// The first day that the format knows. A date of its own would make other bytes of the same book.
constexpr zip_uint16_t NoDate = (1 << 5) + 1;

// Packing that may be stopped. No exception goes through the library, which is asked instead
// whether it is to end.
struct Packed {
    const Progress &progress;
    std::exception_ptr stopped;

    static void tell(zip_t * /*archive*/, double share, void *self)
    {
        constexpr int All = 1000;
        auto *packed = static_cast<Packed *>(self);
        try {
            if (!packed->stopped)
                packed->progress(static_cast<int>(share * All), All);
        } catch (...) {
            packed->stopped = std::current_exception();
        }
    }
    static int isStopped(zip_t * /*archive*/, void *self)
    {
        return static_cast<Packed *>(self)->stopped ? 1 : 0;
    }
};

[[noreturn]] void fail(const char *what)
{
    throw UsmiraError(QStringLiteral("zip archive: ") + QString::fromUtf8(what));
}
} // namespace

ZipArchive::ZipArchive() : m_library(std::make_unique<Library>())
{
    m_library->target = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    if (m_library->target == nullptr)
        fail("no buffer");
    m_library->archive = zip_open_from_source(m_library->target, ZIP_TRUNCATE, nullptr);
    if (m_library->archive == nullptr)
        fail("not opened");
    zip_source_keep(m_library->target); // the archive frees one use of it when it closes
}

ZipArchive::~ZipArchive() = default;

void ZipArchive::add(const QString &name, const QByteArray &bytes, Packing packing)
{
    zip_t *archive = m_library->archive;
    m_library->contents.append(bytes);
    const QByteArray &kept = m_library->contents.last();
    zip_source_t *source =
        zip_source_buffer(archive, kept.constData(), static_cast<zip_uint64_t>(kept.size()), 0);
    const zip_int64_t index = zip_file_add(archive, name.toLatin1().constData(), source, 0);
    if (index < 0) {
        zip_source_free(source);
        fail(zip_strerror(archive));
    }
    const auto place = static_cast<zip_uint64_t>(index);
    const int method = packing == Packing::Stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
    if (zip_set_file_compression(archive, place, method, 0) < 0 ||
        zip_file_set_dostime(archive, place, 0, NoDate, 0) < 0)
        fail(zip_strerror(archive));
}

QByteArray ZipArchive::finish(const Progress &progress)
{
    constexpr double EachHundredth = 0.01;
    zip_t *archive = m_library->archive;
    Packed packed{progress, {}};
    zip_register_progress_callback_with_state(archive, EachHundredth, &Packed::tell, nullptr,
                                              &packed);
    zip_register_cancel_callback_with_state(archive, &Packed::isStopped, nullptr, &packed);
    if (zip_close(archive) == 0)
        m_library->archive = nullptr;
    if (packed.stopped)
        std::rethrow_exception(packed.stopped);
    if (m_library->archive != nullptr)
        fail(zip_strerror(archive));
    zip_stat_t size;
    zip_source_t *target = m_library->target;
    if (zip_source_stat(target, &size) < 0 || zip_source_open(target) < 0)
        fail("not read");
    QByteArray bytes(static_cast<qsizetype>(size.size), Qt::Uninitialized);
    const zip_int64_t got = zip_source_read(target, bytes.data(), size.size);
    zip_source_close(target);
    if (got != bytes.size())
        fail("not whole");
    return bytes;
}
