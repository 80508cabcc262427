#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <initializer_list>
#include <memory>
#include <qpdf/qpdf-c.h>
#include <type_traits>

// A PDF in memory whose objects can be looked at and changed, by libqpdf. It is used through its
// functions for C, since its headers for C++ are not for every compiler.
class PdfFile
{
    using Data = std::remove_pointer_t<qpdf_data>;

public:
    // Throws FormatError when bytes are no PDF.
    explicit PdfFile(const QByteArray &bytes);

    // An object of the file: copies are the same object. What is asked of an object of another kind
    // gives nothing, and the file is no longer sound().
    class Object
    {
    public:
        bool isDictionary() const;
        bool has(const char *key) const;
        Object at(const char *key) const;
        Object at(int item) const;
        int count() const; // of an array
        QStringList keys() const;
        double number() const;
        QString name() const; // with its slash
        QString text() const;
        QByteArray streamBytes() const; // as they are stored
        int id() const;                 // of the file; 0 for what is part of another object

        Object &set(const char *key, const Object &value);
        void remove(const char *key);
        void append(const Object &value);

    private:
        friend class PdfFile;
        Object(std::shared_ptr<Data> file, unsigned int handle);
        qpdf_data file() const { return m_file.get(); }
        unsigned int handle() const { return *m_handle; }

        std::shared_ptr<Data> m_file;
        std::shared_ptr<unsigned int> m_handle;
    };

    Object root() const;
    Object trailer() const;
    int pageCount() const;
    Object page(int index) const;

    Object dictionary() const;
    Object array(std::initializer_list<Object> items = {}) const;
    Object name(const QString &name) const; // with its slash
    Object text(const QString &text) const;
    Object number(double value) const;
    Object whole(int value) const;
    Object boolean(bool value) const;
    Object null() const;
    // The same object, as one of the file's own, which others may have as theirs.
    Object shared(const Object &object) const;

    bool isSound() const;

    // The file as it is now, with an identity made of what is in it. Throws FormatError when it is
    // not sound.
    QByteArray bytes() const;

private:
    Object object(unsigned int handle) const { return {m_file, handle}; }

    QByteArray m_bytes; // read as it is asked for
    std::shared_ptr<Data> m_file;
};
