#include "app/Application.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <new>

class tst_application : public QObject
{
    Q_OBJECT

public:
    explicit tst_application(Application &application) : m_application(application) {}

private Q_SLOTS:
    // What fails while a failure is being dealt with is not told as well.
    void exceptionInASlotEndsTheEventAlone()
    {
        QPushButton button;
        button.show();
        int clicks = 0;
        connect(&button, &QPushButton::clicked, this, [&clicks] {
            ++clicks;
            throw std::bad_alloc();
        });
        QSignalSpy failed(&m_application, &Application::failed);
        connect(&m_application, &Application::failed, &button,
                [&button] { QTest::mouseClick(&button, Qt::LeftButton); });
        for (const int told : {1, 2}) {
            QTest::mouseClick(&button, Qt::LeftButton);
            QTRY_COMPARE(failed.count(), told);
            QCOMPARE(clicks, 2 * told);
        }
    }

private:
    Application &m_application;
};

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    tst_application test(application);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_application.moc"
