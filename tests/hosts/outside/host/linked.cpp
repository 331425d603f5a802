// A host that links the control: makes a data file, opens the main form and looks at it.
#include <QApplication>
#include <cstdio>

#include "control/qvJxc_Zj.h"
#include "hosts/component/component.h"
#include "suite/store/data_place.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  qvzj::Component component(QString::fromLocal8Bit(argv[2]));
  qvzj::store::DataPlace place;
  place.folder = argv[1];
  qvzj::store::OpenOrMakePlace(place);

  qvzj::qvJxc_Zj control;
  control.setUserPath(place.folder);
  control.setUserName("张三");
  control.setZgName("张三");
  control.setMyModel("11111111111");
  control.refresh(0, 0);
  if (!control.Form()) return 1;
  std::printf("linked: %s\n", control.Form()->Caption().c_str());
  return 0;
}
