#include "hosts/plugin/control_widget.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <exception>
#include <utility>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "hosts/plugin/variant_bag.h"
#include "platform/basic/number.h"

namespace qvzj {

using qt::FromUtf8;
using qt::ToUtf8;

namespace {

/// Runs what may refuse a value. Qt's property system carries no exceptions, so a refusal goes to
/// the log.
template <class Act>
void OrWarn(const char* what, Act act) {
  try {
    act();
  } catch (const std::exception& error) {
    qWarning("qvJxc_Zj.%s: %s", what, error.what());
  }
}

/// The platform's date value: days since 30 December 1899 with the time as a fraction.
double DaysOf(const QDateTime& moment) {
  const QDateTime zero(QDate(1899, 12, 30), QTime(0, 0));
  constexpr double kMillisecondsADay = 86'400'000;
  return static_cast<double>(zero.daysTo(moment)) +
         moment.time().msecsSinceStartOfDay() / kMillisecondsADay;
}

}  // namespace

ControlWidget::ControlWidget(QWidget* parent, std::shared_ptr<void> component, bool designing)
    : QWidget(parent), component_(std::move(component)), designing_(designing) {
  control_.InitProperties();
}

void ControlWidget::Design(const char* property, const QVariant& value) {
  if (designing_) designed_.insert(property, value);
}

QVariantMap ControlWidget::SaveProperties() const {
  VariantBag bag;
  control_.WriteProperties(bag);
  return bag.Values();
}

void ControlWidget::RestoreProperties(const QVariantMap& store) {
  OrWarn("RestoreProperties", [&] { control_.ReadProperties(VariantBag(store)); });
}

QString ControlWidget::PropertyBagText() const {
  const QJsonObject object = QJsonObject::fromVariantMap(SaveProperties());
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void ControlWidget::setPropertyBagText(const QString& json) {
  RestoreProperties(QJsonDocument::fromJson(json.toUtf8()).object().toVariantMap());
}

QString ControlWidget::myName() const {
  return designing_ ? Designed("myName").toString() : FromUtf8(control_.myName());
}
QString ControlWidget::UserID() const {
  return designing_ ? Designed("UserID").toString() : FromUtf8(control_.UserID());
}
QString ControlWidget::Default() const {
  return designing_ ? Designed("Default").toString() : FromUtf8(control_.Default());
}

void ControlWidget::setMyTaskID(int value) {
  control_.setMyTaskID(value);
  Design("myTaskID", value);
}
void ControlWidget::setUserPath(const QString& value) {
  control_.setUserPath(ToUtf8(value));
  Design("UserPath", value);
}
void ControlWidget::setMyName(const QString& value) {
  control_.setMyName(ToUtf8(value));
  Design("myName", value);
}
void ControlWidget::setMyDate(const QDateTime& value) {
  control_.setMyDate(DaysOf(value));
  Design("myDate", value);
}
void ControlWidget::setPassword(const QString& value) {
  control_.setPassword(ToUtf8(value));
  Design("Password", value);
}
void ControlWidget::setSQLData(int value) {
  OrWarn("SQLData", [&] {
    control_.setSQLData(basic::ToInt16(value));
    Design("SQLData", value);
  });
}
void ControlWidget::setLanguage(int value) {
  OrWarn("Language", [&] {
    control_.setLanguage(basic::ToInt16(value));
    Design("Language", value);
  });
}
void ControlWidget::setPowerPath(const QString& value) {
  control_.setPowerPath(ToUtf8(value));
  Design("PowerPath", value);
}
void ControlWidget::setUserName(const QString& value) {
  control_.setUserName(ToUtf8(value));
  Design("UserName", value);
}
void ControlWidget::setZgName(const QString& value) {
  control_.setZgName(ToUtf8(value));
  Design("ZgName", value);
}
void ControlWidget::setCompName(const QString& value) {
  control_.setCompName(ToUtf8(value));
  Design("CompName", value);
}
void ControlWidget::setMyPower(const QString& value) {
  control_.setMyPower(ToUtf8(value));
  Design("myPower", value);
}
void ControlWidget::setMyModel(const QString& value) {
  control_.setMyModel(ToUtf8(value));
  Design("myModel", value);
}
void ControlWidget::setUserID(const QString& value) {
  control_.setUserID(ToUtf8(value));
  Design("UserID", value);
}
void ControlWidget::setDefault(const QString& value) {
  control_.setDefault(ToUtf8(value));
  Design("Default", value);
}

void ControlWidget::refresh(int MfRunMode, int myShowMode) {
  OrWarn("refresh",
         [&] { control_.refresh(basic::ToInt16(MfRunMode), basic::ToInt16(myShowMode)); });
}

QSize ControlWidget::sizeHint() const { return {220, 64}; }

void ControlWidget::paintEvent(QPaintEvent*) {
  const view::Colors& colors = qt::ColorsFor(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor(colors.border));
  painter.setBrush(QColor(colors.card));
  painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 6, 6);
  painter.setPen(QColor(colors.muted));
  painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("qvJxc_Zj"));
}

}  // namespace qvzj
