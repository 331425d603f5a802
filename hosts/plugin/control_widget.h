#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>
#include <QWidget>
#include <memory>

#include "control/qvJxc_Zj.h"

namespace qvzj {

/// The control as a Qt widget: the host's properties as Qt properties, `refresh` as a slot, and
/// persistence through a property store that the host supplies. Properties that the control does
/// not let a host read back answer an empty value here. On a form designer's desk they answer what
/// was set there, so that the designer can show and save it.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int myTaskID READ DesignedMyTaskID WRITE setMyTaskID)
  Q_PROPERTY(QString UserPath READ DesignedUserPath WRITE setUserPath)
  Q_PROPERTY(QString myName READ myName WRITE setMyName)
  Q_PROPERTY(QDateTime myDate READ DesignedMyDate WRITE setMyDate)
  Q_PROPERTY(QString Password READ DesignedPassword WRITE setPassword)
  Q_PROPERTY(int SQLData READ DesignedSQLData WRITE setSQLData)
  Q_PROPERTY(int AlertType READ AlertType WRITE setAlertType STORED false)
  Q_PROPERTY(int Language READ DesignedLanguage WRITE setLanguage)
  Q_PROPERTY(QString PowerPath READ DesignedPowerPath WRITE setPowerPath)
  Q_PROPERTY(QString UserName READ DesignedUserName WRITE setUserName)
  Q_PROPERTY(QString ZgName READ DesignedZgName WRITE setZgName)
  Q_PROPERTY(QString CompName READ DesignedCompName WRITE setCompName)
  Q_PROPERTY(QString myPower READ DesignedMyPower WRITE setMyPower)
  Q_PROPERTY(QString myModel READ DesignedMyModel WRITE setMyModel)
  Q_PROPERTY(QString UserID READ UserID WRITE setUserID)
  Q_PROPERTY(QString Default READ Default WRITE setDefault)
  /// The saved values as JSON: what a form file keeps of the control.
  Q_PROPERTY(QString propertyBag READ PropertyBagText WRITE setPropertyBagText DESIGNABLE false)

 public:
  /// `component` is what the control works in; it stays loaded as long as the widget is there.
  /// `designing`: the widget lies on a form designer's desk, and there is none.
  ControlWidget(QWidget* parent, std::shared_ptr<void> component, bool designing);

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

  // What a designer has set; empty in a running host.
  int DesignedMyTaskID() const { return Designed("myTaskID").toInt(); }
  QString DesignedUserPath() const { return Designed("UserPath").toString(); }
  QDateTime DesignedMyDate() const { return Designed("myDate").toDateTime(); }
  QString DesignedPassword() const { return Designed("Password").toString(); }
  int DesignedSQLData() const { return Designed("SQLData").toInt(); }
  int DesignedLanguage() const { return Designed("Language").toInt(); }
  QString DesignedPowerPath() const { return Designed("PowerPath").toString(); }
  QString DesignedUserName() const { return Designed("UserName").toString(); }
  QString DesignedZgName() const { return Designed("ZgName").toString(); }
  QString DesignedCompName() const { return Designed("CompName").toString(); }
  QString DesignedMyPower() const { return Designed("myPower").toString(); }
  QString DesignedMyModel() const { return Designed("myModel").toString(); }

  void setMyTaskID(int value);
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
  QVariant Designed(const char* property) const { return designed_.value(property); }
  /// Keeps a value for the designer; the module's own values are shared by all controls.
  void Design(const char* property, const QVariant& value);

  std::shared_ptr<void> component_;  // before the control, which works in it to its end
  qvJxc_Zj control_;
  bool designing_;
  QVariantMap designed_;
};

}  // namespace qvzj

/// The widget under the name by which forms, and the code that is made of them, know it.
class qvJxc_Zj : public qvzj::ControlWidget {
  Q_OBJECT

 public:
  using ControlWidget::ControlWidget;
};
