#include "platform/LocalClock.h"

#include <QDateTime>
#include <QLocale>

#include "text/Text.h"

namespace {

QString LongTimeFormat(const QLocale& locale) {
    // The locale's long format ends with the time zone, in many forms; its short one with seconds has none, so that the
    // marker of the half day comes last, as scripts expect.
    QString format = locale.timeFormat(QLocale::ShortFormat);
    const qsizetype minutes = format.indexOf("mm");
    if (minutes > 0 && !format.contains('s')) format.insert(minutes + 2, format.mid(minutes - 1, 1) + "ss");
    return format;
}

}  // namespace

std::string ToBotText(QString text) {
    for (const char16_t blank : {u'\u00A0', u'\u202F', u'\u2009'}) text.replace(QChar(blank), QChar(u' '));
    return FromUtf8(text.toStdString());
}

LocalTime LocalNow() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::string LocalShortDate(const LocalTime& time) {
    return ToBotText(QLocale::system().toString(QDate(time.year, time.month, time.day), QLocale::ShortFormat));
}

std::string LocalLongTime(const LocalTime& time) {
    const QLocale locale = QLocale::system();
    return ToBotText(locale.toString(QTime(time.hour, time.minute, time.second), LongTimeFormat(locale)));
}
