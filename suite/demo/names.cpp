#include "suite/demo/names.h"

#include <algorithm>

namespace qvzj::demo_data {
namespace {

constexpr Town kPlaces[] = {
    {"广东", "深圳", "518000", "0755"}, {"广东", "广州", "510000", "020"},
    {"广东", "东莞", "523000", "0769"}, {"广东", "佛山", "528000", "0757"},
    {"广东", "惠州", "516000", "0752"}, {"浙江", "杭州", "310000", "0571"},
    {"浙江", "宁波", "315000", "0574"}, {"浙江", "义乌", "322000", "0579"},
    {"江苏", "南京", "210000", "025"},  {"江苏", "苏州", "215000", "0512"},
    {"江苏", "无锡", "214000", "0510"}, {"福建", "厦门", "361000", "0592"},
    {"福建", "泉州", "362000", "0595"}, {"山东", "青岛", "266000", "0532"},
    {"山东", "济南", "250000", "0531"}, {"四川", "成都", "610000", "028"},
    {"湖北", "武汉", "430000", "027"},  {"湖南", "长沙", "410000", "0731"},
    {"陕西", "西安", "710000", "029"},  {"辽宁", "大连", "116000", "0411"},
    {"天津", "天津", "300000", "022"},  {"上海", "上海", "200000", "021"},
    {"北京", "北京", "100000", "010"},  {"重庆", "重庆", "400000", "023"},
};

constexpr std::string_view kFamilies[] = {
    "王", "李", "张", "刘", "陈", "杨", "黄", "赵", "吴", "周", "徐", "孙", "马", "朱",
    "胡", "郭", "何", "林", "高", "罗", "郑", "梁", "谢", "宋", "唐", "许", "邓", "冯",
    "韩", "曹", "曾", "彭", "萧", "蔡", "潘", "田", "董", "袁", "于", "余", "叶", "蒋",
};

constexpr std::string_view kGiven[] = {
    "伟", "芳", "娜", "敏", "静", "丽", "强", "磊", "军", "洋", "勇", "艳", "杰", "娟",
    "涛", "明", "超", "霞", "平", "刚", "英", "华", "玉", "梅", "文", "辉", "建", "国",
    "志", "海", "春", "红", "小", "晓", "云", "立", "永", "佳", "思", "雨", "欣", "宇",
};

/// First and second characters of company names: the lucky words that such names are made of.
constexpr std::string_view kFirst[] = {
    "华", "盛", "兴", "泰", "恒", "瑞", "鑫", "宏", "永", "隆", "博", "远", "金", "荣",
    "安", "昌", "德", "东", "丰", "福", "广", "海", "嘉", "杰", "凯", "康", "利", "联",
    "美", "南", "鹏", "启", "润", "顺", "天", "新", "信", "亿", "裕", "正", "中", "卓",
};
constexpr std::string_view kSecond[] = {
    "达", "诚", "源", "创", "通", "宝", "成", "程", "发", "丰", "冠", "光", "和", "恒",
    "鸿", "辉", "佳", "捷", "锦", "力", "霖", "隆", "茂", "明", "宁", "沛", "奇", "全",
    "森", "升", "盛", "泰", "腾", "威", "翔", "欣", "洋", "业", "邦", "越", "展", "众",
};

constexpr std::string_view kTrades[] = {
    "电子", "五金", "贸易", "科技", "塑胶", "包装", "纺织", "服饰",     "机电", "建材",
    "食品", "化工", "家具", "灯饰", "玩具", "印刷", "物流", "医疗器械", "实业", "进出口",
};

constexpr std::string_view kBanks[] = {"工商银行", "建设银行", "农业银行",
                                       "中国银行", "交通银行", "招商银行"};
constexpr std::string_view kBranches[] = {"中山路支行", "人民路支行", "高新支行",  "城东支行",
                                          "滨江支行",   "解放路支行", "开发区支行"};

constexpr std::string_view kGoods[] = {
    "电容器", "连接器", "铝型材", "不锈钢板", "纸箱",   "注塑件", "棉纱",   "面料",
    "电机",   "水泥",   "食用油", "涂料",     "办公桌", "灯具",   "积木",   "标签",
    "托盘",   "手套",   "轴承",   "电缆",     "阀门",   "螺丝",   "传感器", "电源",
};

constexpr std::string_view kRemarks[] = {
    "月结30天", "月结60天", "款到发货", "长期合作", "信用良好", "新客户", "送货上门", "含税价",
};

}  // namespace

std::string Numbered(std::string_view prefix, int64_t number, int width) {
  const std::string digits = std::to_string(number);
  const size_t zeros =
      static_cast<size_t>(width) - std::min(static_cast<size_t>(width), digits.size());
  return std::string(prefix) + std::string(zeros, '0') + digits;
}

std::string Names::Person() {
  std::string name{dice_.Pick(kFamilies)};
  name += dice_.Pick(kGiven);
  if (dice_.Chance(60)) name += dice_.Pick(kGiven);
  return name;
}

const Town& Names::Place() { return dice_.Pick(kPlaces); }

std::string Names::Company(const Town& place) {
  // After a few tries in vain the town is full, and a third character makes the difference.
  for (int tries = 0;; ++tries) {
    std::string name{place.city};
    name += dice_.Pick(kFirst);
    name += dice_.Pick(kSecond);
    for (int more = tries / 4; more > 0; --more) name += dice_.Pick(kSecond);
    name += dice_.Pick(kTrades);
    name += "有限公司";
    if (companies_.insert(name).second) return name;
  }
}

std::string Names::Bank(const Town& place) {
  std::string bank{dice_.Pick(kBanks)};
  bank += place.city;
  bank += dice_.Pick(kBranches);
  return bank;
}

std::string Names::Digits(int count) {
  std::string digits;
  for (int i = 0; i < count; ++i) digits += static_cast<char>('0' + dice_.Below(10));
  return digits;
}

std::string Names::Telephone(const Town& place) {
  std::string number{place.area_code};
  number += '-';
  number += static_cast<char>('2' + dice_.Below(7));
  return number + Digits(7);
}

std::string_view Names::Goods() { return dice_.Pick(kGoods); }

std::string_view Names::Remark() {
  return dice_.Chance(40) ? dice_.Pick(kRemarks) : std::string_view{};
}

}  // namespace qvzj::demo_data
