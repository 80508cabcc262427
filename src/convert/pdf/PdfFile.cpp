#include "convert/pdf/PdfFile.h"

#include "platform/Errors.h"

#include <cstdlib>

namespace
{
constexpr int Decimals = 3;

[[noreturn]] void fail(qpdf_data file)
{
    const qpdf_error error = qpdf_get_error(file);
    throw FormatError(
        0, QString::fromUtf8(error == nullptr ? "a PDF" : qpdf_get_error_full_text(file, error)));
}
} // namespace

PdfFile::PdfFile(const QByteArray &bytes)
    : m_bytes(bytes), m_file(qpdf_init(), [](qpdf_data file) { qpdf_cleanup(&file); })
{
    qpdf_silence_errors(m_file.get());
    qpdf_set_suppress_warnings(m_file.get(), QPDF_TRUE);
    const auto size = static_cast<unsigned long long>(m_bytes.size());
    if ((qpdf_read_memory(m_file.get(), "", m_bytes.constData(), size, nullptr) & QPDF_ERRORS) != 0)
        fail(m_file.get());
}

PdfFile::Object PdfFile::root() const
{
    return object(qpdf_get_root(m_file.get()));
}

PdfFile::Object PdfFile::trailer() const
{
    return object(qpdf_get_trailer(m_file.get()));
}

int PdfFile::pageCount() const
{
    return qpdf_get_num_pages(m_file.get());
}

PdfFile::Object PdfFile::page(int index) const
{
    return object(qpdf_get_page_n(m_file.get(), static_cast<std::size_t>(index)));
}

PdfFile::Object PdfFile::dictionary() const
{
    return object(qpdf_oh_new_dictionary(m_file.get()));
}

PdfFile::Object PdfFile::array(std::initializer_list<Object> items) const
{
    Object array = object(qpdf_oh_new_array(m_file.get()));
    for (const Object &item : items)
        array.append(item);
    return array;
}

PdfFile::Object PdfFile::name(const QString &name) const
{
    return object(qpdf_oh_new_name(m_file.get(), name.toUtf8().constData()));
}

PdfFile::Object PdfFile::text(const QString &text) const
{
    return object(qpdf_oh_new_unicode_string(m_file.get(), text.toUtf8().constData()));
}

PdfFile::Object PdfFile::number(double value) const
{
    return object(qpdf_oh_new_real_from_double(m_file.get(), value, Decimals));
}

PdfFile::Object PdfFile::whole(int value) const
{
    return object(qpdf_oh_new_integer(m_file.get(), value));
}

PdfFile::Object PdfFile::boolean(bool value) const
{
    return object(qpdf_oh_new_bool(m_file.get(), value ? QPDF_TRUE : QPDF_FALSE));
}

PdfFile::Object PdfFile::null() const
{
    return object(qpdf_oh_new_null(m_file.get()));
}

PdfFile::Object PdfFile::shared(const Object &object) const
{
    return this->object(qpdf_make_indirect_object(m_file.get(), object.handle()));
}

bool PdfFile::isSound() const
{
    return qpdf_has_error(m_file.get()) == QPDF_FALSE &&
           qpdf_more_warnings(m_file.get()) == QPDF_FALSE;
}

// Objects in streams would stand there in an order that is another each time.
QByteArray PdfFile::bytes() const
{
    const qpdf_data file = m_file.get();
    if (!isSound() || (qpdf_init_write_memory(file) & QPDF_ERRORS) != 0)
        fail(file);
    qpdf_set_deterministic_ID(file, QPDF_TRUE);
    qpdf_set_object_stream_mode(file, qpdf_o_disable);
    if ((qpdf_write(file) & QPDF_ERRORS) != 0)
        fail(file);
    return {reinterpret_cast<const char *>(qpdf_get_buffer(file)),
            static_cast<qsizetype>(qpdf_get_buffer_length(file))};
}

// The library keeps an object as long as its handle is not given back.
PdfFile::Object::Object(std::shared_ptr<Data> file, unsigned int handle)
    : m_file(std::move(file)), m_handle(new unsigned int(handle), [data = m_file](unsigned int *h) {
          qpdf_oh_release(data.get(), *h);
          delete h;
      })
{
}

bool PdfFile::Object::isDictionary() const
{
    return qpdf_oh_is_dictionary(file(), handle()) != QPDF_FALSE;
}

bool PdfFile::Object::has(const char *key) const
{
    return isDictionary() && qpdf_oh_has_key(file(), handle(), key) != QPDF_FALSE;
}

PdfFile::Object PdfFile::Object::at(const char *key) const
{
    return {m_file, qpdf_oh_get_key(file(), handle(), key)};
}

PdfFile::Object PdfFile::Object::at(int item) const
{
    return {m_file, qpdf_oh_get_array_item(file(), handle(), item)};
}

int PdfFile::Object::count() const
{
    return qpdf_oh_get_array_n_items(file(), handle());
}

QStringList PdfFile::Object::keys() const
{
    QStringList keys;
    qpdf_oh_begin_dict_key_iter(file(), handle());
    while (qpdf_oh_dict_more_keys(file()) != QPDF_FALSE)
        keys.append(QString::fromUtf8(qpdf_oh_dict_next_key(file())));
    return keys;
}

double PdfFile::Object::number() const
{
    return qpdf_oh_get_numeric_value(file(), handle());
}

QString PdfFile::Object::name() const
{
    return QString::fromUtf8(qpdf_oh_get_name(file(), handle()));
}

QString PdfFile::Object::text() const
{
    return QString::fromUtf8(qpdf_oh_get_utf8_value(file(), handle()));
}

QByteArray PdfFile::Object::streamBytes() const
{
    unsigned char *data = nullptr;
    std::size_t size = 0;
    QPDF_BOOL filtered = QPDF_FALSE;
    qpdf_oh_get_stream_data(file(), handle(), qpdf_dl_none, &filtered, &data, &size);
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    std::free(data);
    return bytes;
}

int PdfFile::Object::id() const
{
    return qpdf_oh_get_object_id(file(), handle());
}

PdfFile::Object &PdfFile::Object::set(const char *key, const Object &value)
{
    qpdf_oh_replace_key(file(), handle(), key, value.handle());
    return *this;
}

void PdfFile::Object::remove(const char *key)
{
    qpdf_oh_remove_key(file(), handle(), key);
}

void PdfFile::Object::append(const Object &value)
{
    qpdf_oh_append_item(file(), handle(), value.handle());
}
