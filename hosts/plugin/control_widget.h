#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>
#include <QWidget>

#include "control/qvJxc_Zj.h"

namespace qvzj {

/// The control as a Qt widget: the host's properties as Qt properties, `refresh` as a slot, and
/// persistence through a property store that the host supplies. Properties that the control does
/// not let a host read back answer an empty value here.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int myTaskID READ NoNumber WRITE setMyTaskID STORED false)
  Q_PROPERTY(QString UserPath READ NoText WRITE setUserPath STORED false)
  Q_PROPERTY(QString myName READ myName WRITE setMyName STORED false)
  Q_PROPERTY(QDateTime myDate READ NoDate WRITE setMyDate STORED false)
  Q_PROPERTY(QString Password READ NoText WRITE setPassword STORED false)
  Q_PROPERTY(int SQLData READ NoNumber WRITE setSQLData STORED false)
  Q_PROPERTY(int AlertType READ AlertType WRITE setAlertType STORED false)
  Q_PROPERTY(int Language READ NoNumber WRITE setLanguage STORED false)
  Q_PROPERTY(QString PowerPath READ NoText WRITE setPowerPath STORED false)
  Q_PROPERTY(QString UserName READ NoText WRITE setUserName STORED false)
  Q_PROPERTY(QString ZgName READ NoText WRITE setZgName STORED false)
  Q_PROPERTY(QString CompName READ NoText WRITE setCompName STORED false)
  Q_PROPERTY(QString myPower READ NoText WRITE setMyPower STORED false)
  Q_PROPERTY(QString myModel READ NoText WRITE setMyModel STORED false)
  Q_PROPERTY(QString UserID READ UserID WRITE setUserID STORED false)
  Q_PROPERTY(QString Default READ Default WRITE setDefault STORED false)
  /// The saved values as JSON: what a form file keeps of the control.
  Q_PROPERTY(QString propertyBag READ PropertyBagText WRITE setPropertyBagText DESIGNABLE false)

 public:
  explicit ControlWidget(QWidget* parent = nullptr);

  /// Saves the control into a store of the host's; values equal to their presets are left out.
  Q_INVOKABLE QVariantMap SaveProperties() const;
  /// Restores it from such a store; keys compare without regard to case. A value that does not
  /// fit its type ends the restore with a warning in the log.
  Q_INVOKABLE void RestoreProperties(const QVariantMap& store);

  QString myName() const;
  QString UserID() const;
  QString Default() const;
  int AlertType() const { return control_.AlertType(); }
  QString PropertyBagText() const;
  QString NoText() const { return {}; }
  int NoNumber() const { return 0; }
  QDateTime NoDate() const { return {}; }

  void setMyTaskID(int value) { control_.setMyTaskID(value); }
  void setUserPath(const QString& value);
  void setMyName(const QString& value);
  void setMyDate(const QDateTime& value);
  void setPassword(const QString& value);
  /// Outside 16 bits: refused with a warning in the log, the value before stays.
  void setSQLData(int value);
  void setAlertType(int) {}
  /// As setSQLData.
  void setLanguage(int value);
  void setPowerPath(const QString& value);
  void setUserName(const QString& value);
  void setZgName(const QString& value);
  void setCompName(const QString& value);
  void setMyPower(const QString& value);
  void setMyModel(const QString& value);
  void setUserID(const QString& value);
  void setDefault(const QString& value);
  void setPropertyBagText(const QString& json);

 public slots:
  /// Opens the component; see qvJxc_Zj::refresh. Arguments outside 16 bits are refused with a
  /// warning in the log.
  void refresh(int MfRunMode, int myShowMode);

 protected:
  void paintEvent(QPaintEvent* event) override;
  QSize sizeHint() const override;

 private:
  qvJxc_Zj control_;
};

}  // namespace qvzj
