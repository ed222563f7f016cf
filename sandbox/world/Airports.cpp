#include "sandbox/world/Airports.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace ombrivane::sandbox {

namespace {

constexpr std::array<std::string_view, 12> popularCodes{
    "KTM", "PKR", "BWA", "BIR", "DEL", "DOH", "DXB", "BKK", "KUL", "SIN", "LHR", "SYD"};

/// Lower case, and the accented letters of the table without their accents, so that a plain keyboard finds
/// them.
std::string folded(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, char>, 6> accents{
        {{"ã", 'a'}, {"á", 'a'}, {"é", 'e'}, {"ó", 'o'}, {"ö", 'o'}, {"ü", 'u'}}};
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto accent = std::find_if(accents.begin(), accents.end(), [&](const auto& known) {
            return text.substr(i, known.first.size()) == known.first;
        });
        if (accent != accents.end()) {
            result += accent->second;
            i += accent->first.size() - 1;
        } else {
            result += text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
        }
    }
    return result;
}

/// Whether `query` stands at the start of some word of `text`; both are folded.
bool startsAWord(const std::string& text, const std::string& query) {
    for (std::size_t at = text.find(query); at != std::string::npos; at = text.find(query, at + 1)) {
        const char before = at == 0 ? ' ' : text[at - 1];
        if (before == ' ' || before == '-' || before == '(' || before == '\'') return true;
    }
    return false;
}

double radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

} // namespace

bool Airport::isInternational() const {
    return !isDomestic() || code == "KTM" || code == "PKR" || code == "BWA";
}

bool Airport::hasService() const { return code != "DOP" && code != "LYR"; }

const std::vector<Airport>& airports() {
    static const std::vector<Airport> list{
        {"KTM", "Tribhuvan International Airport", "Kathmandu", "Nepal", 27.70, 85.36, 345},
        {"PKR", "Pokhara International Airport", "Pokhara", "Nepal", 28.18, 84.01, 345},
        {"BIR", "Biratnagar Airport", "Biratnagar", "Nepal", 26.48, 87.26, 345},
        {"BWA", "Gautam Buddha International Airport", "Bhairahawa", "Nepal", 27.51, 83.42, 345},
        {"BDP", "Bhadrapur Airport", "Bhadrapur", "Nepal", 26.57, 88.08, 345},
        {"KEP", "Nepalgunj Airport", "Nepalgunj", "Nepal", 28.10, 81.67, 345},
        {"SIF", "Simara Airport", "Simara", "Nepal", 27.16, 84.98, 345},
        {"DHI", "Dhangadhi Airport", "Dhangadhi", "Nepal", 28.75, 80.58, 345},
        {"JKR", "Janakpur Airport", "Janakpur", "Nepal", 26.71, 85.92, 345},
        {"BHR", "Bharatpur Airport", "Bharatpur", "Nepal", 27.68, 84.43, 345},
        {"LUA", "Tenzing-Hillary Airport", "Lukla", "Nepal", 27.69, 86.73, 345},
        {"TMI", "Tumlingtar Airport", "Tumlingtar", "Nepal", 27.32, 87.19, 345},
        {"SKH", "Surkhet Airport", "Surkhet", "Nepal", 28.59, 81.64, 345},
        {"JMO", "Jomsom Airport", "Jomsom", "Nepal", 28.78, 83.72, 345},
        {"DOP", "Dolpa Airport", "Juphal", "Nepal", 28.99, 82.82, 345},
        {"DEL", "Indira Gandhi International Airport", "Delhi", "India", 28.56, 77.10, 330},
        {"BOM", "Chhatrapati Shivaji Maharaj International Airport", "Mumbai", "India", 19.09, 72.87, 330},
        {"BLR", "Kempegowda International Airport", "Bengaluru", "India", 13.20, 77.71, 330},
        {"CCU", "Netaji Subhas Chandra Bose International Airport", "Kolkata", "India", 22.65, 88.45, 330},
        {"MAA", "Chennai International Airport", "Chennai", "India", 12.99, 80.17, 330},
        {"HYD", "Rajiv Gandhi International Airport", "Hyderabad", "India", 17.24, 78.43, 330},
        {"DAC", "Hazrat Shahjalal International Airport", "Dhaka", "Bangladesh", 23.84, 90.40, 360},
        {"CMB", "Bandaranaike International Airport", "Colombo", "Sri Lanka", 7.18, 79.88, 330},
        {"MLE", "Velana International Airport", "Malé", "Maldives", 4.19, 73.53, 300},
        {"KHI", "Jinnah International Airport", "Karachi", "Pakistan", 24.91, 67.16, 300},
        {"ISB", "Islamabad International Airport", "Islamabad", "Pakistan", 33.55, 72.83, 300},
        {"PBH", "Paro International Airport", "Paro", "Bhutan", 27.40, 89.42, 360},
        {"DOH", "Hamad International Airport", "Doha", "Qatar", 25.27, 51.61, 180},
        {"DXB", "Dubai International Airport", "Dubai", "United Arab Emirates", 25.25, 55.36, 240},
        {"AUH", "Zayed International Airport", "Abu Dhabi", "United Arab Emirates", 24.43, 54.65, 240},
        {"SHJ", "Sharjah International Airport", "Sharjah", "United Arab Emirates", 25.33, 55.52, 240},
        {"MCT", "Muscat International Airport", "Muscat", "Oman", 23.59, 58.28, 240},
        {"BAH", "Bahrain International Airport", "Manama", "Bahrain", 26.27, 50.63, 180},
        {"KWI", "Kuwait International Airport", "Kuwait City", "Kuwait", 29.23, 47.97, 180},
        {"RUH", "King Khalid International Airport", "Riyadh", "Saudi Arabia", 24.96, 46.70, 180},
        {"JED", "King Abdulaziz International Airport", "Jeddah", "Saudi Arabia", 21.68, 39.16, 180},
        {"DMM", "King Fahd International Airport", "Dammam", "Saudi Arabia", 26.47, 49.80, 180},
        {"IST", "Istanbul Airport", "Istanbul", "Turkey", 41.26, 28.74, 180},
        {"CAI", "Cairo International Airport", "Cairo", "Egypt", 30.12, 31.41, 120},
        {"NBO", "Jomo Kenyatta International Airport", "Nairobi", "Kenya", -1.32, 36.93, 180},
        {"ADD", "Bole International Airport", "Addis Ababa", "Ethiopia", 8.98, 38.80, 180},
        {"JNB", "O. R. Tambo International Airport", "Johannesburg", "South Africa", -26.13, 28.24, 120},
        {"LHR", "Heathrow Airport", "London", "United Kingdom", 51.47, -0.45, 0},
        {"MAN", "Manchester Airport", "Manchester", "United Kingdom", 53.35, -2.27, 0},
        {"DUB", "Dublin Airport", "Dublin", "Ireland", 53.42, -6.27, 0},
        {"CDG", "Charles de Gaulle Airport", "Paris", "France", 49.01, 2.55, 60},
        {"FRA", "Frankfurt Airport", "Frankfurt", "Germany", 50.03, 8.57, 60},
        {"MUC", "Munich Airport", "Munich", "Germany", 48.35, 11.79, 60},
        {"AMS", "Amsterdam Airport Schiphol", "Amsterdam", "Netherlands", 52.31, 4.76, 60},
        {"BRU", "Brussels Airport", "Brussels", "Belgium", 50.90, 4.48, 60},
        {"ZRH", "Zürich Airport", "Zürich", "Switzerland", 47.46, 8.55, 60},
        {"VIE", "Vienna International Airport", "Vienna", "Austria", 48.11, 16.57, 60},
        {"FCO", "Leonardo da Vinci-Fiumicino Airport", "Rome", "Italy", 41.80, 12.25, 60},
        {"MAD", "Adolfo Suárez Madrid-Barajas Airport", "Madrid", "Spain", 40.47, -3.57, 60},
        {"LIS", "Humberto Delgado Airport", "Lisbon", "Portugal", 38.77, -9.13, 0},
        {"CPH", "Copenhagen Airport", "Copenhagen", "Denmark", 55.62, 12.66, 60},
        {"ARN", "Stockholm Arlanda Airport", "Stockholm", "Sweden", 59.65, 17.92, 60},
        {"OSL", "Oslo Airport Gardermoen", "Oslo", "Norway", 60.19, 11.10, 60},
        {"LYR", "Svalbard Airport", "Longyearbyen", "Norway", 78.25, 15.47, 60},
        {"HEL", "Helsinki Airport", "Helsinki", "Finland", 60.32, 24.96, 120},
        {"WAW", "Warsaw Chopin Airport", "Warsaw", "Poland", 52.17, 20.97, 60},
        {"ATH", "Athens International Airport", "Athens", "Greece", 37.94, 23.94, 120},
        {"TAS", "Islam Karimov Tashkent International Airport", "Tashkent", "Uzbekistan", 41.26, 69.28, 300},
        {"SIN", "Changi Airport", "Singapore", "Singapore", 1.36, 103.99, 480},
        {"KUL", "Kuala Lumpur International Airport", "Kuala Lumpur", "Malaysia", 2.75, 101.71, 480},
        {"BKK", "Suvarnabhumi Airport", "Bangkok", "Thailand", 13.69, 100.75, 420},
        {"DMK", "Don Mueang International Airport", "Bangkok", "Thailand", 13.91, 100.61, 420},
        {"HKT", "Phuket International Airport", "Phuket", "Thailand", 8.11, 98.31, 420},
        {"HKG", "Hong Kong International Airport", "Hong Kong", "Hong Kong", 22.31, 113.91, 480},
        {"CAN", "Guangzhou Baiyun International Airport", "Guangzhou", "China", 23.39, 113.30, 480},
        {"PVG", "Shanghai Pudong International Airport", "Shanghai", "China", 31.14, 121.81, 480},
        {"PEK", "Beijing Capital International Airport", "Beijing", "China", 40.08, 116.58, 480},
        {"KMG", "Kunming Changshui International Airport", "Kunming", "China", 25.10, 102.93, 480},
        {"LXA", "Lhasa Gonggar Airport", "Lhasa", "China", 29.30, 90.91, 480},
        {"TPE", "Taiwan Taoyuan International Airport", "Taipei", "Taiwan", 25.08, 121.23, 480},
        {"ICN", "Incheon International Airport", "Seoul", "South Korea", 37.46, 126.44, 540},
        {"NRT", "Narita International Airport", "Tokyo", "Japan", 35.76, 140.39, 540},
        {"HND", "Haneda Airport", "Tokyo", "Japan", 35.55, 139.78, 540},
        {"KIX", "Kansai International Airport", "Osaka", "Japan", 34.43, 135.24, 540},
        {"MNL", "Ninoy Aquino International Airport", "Manila", "Philippines", 14.51, 121.02, 480},
        {"CGK", "Soekarno-Hatta International Airport", "Jakarta", "Indonesia", -6.13, 106.66, 420},
        {"DPS", "Ngurah Rai International Airport", "Denpasar", "Indonesia", -8.75, 115.17, 480},
        {"SGN", "Tan Son Nhat International Airport", "Ho Chi Minh City", "Vietnam", 10.82, 106.65, 420},
        {"HAN", "Noi Bai International Airport", "Hanoi", "Vietnam", 21.22, 105.81, 420},
        {"RGN", "Yangon International Airport", "Yangon", "Myanmar", 16.91, 96.13, 390},
        {"SYD", "Kingsford Smith Airport", "Sydney", "Australia", -33.95, 151.18, 600},
        {"MEL", "Melbourne Airport", "Melbourne", "Australia", -37.67, 144.84, 600},
        {"BNE", "Brisbane Airport", "Brisbane", "Australia", -27.38, 153.12, 600},
        {"PER", "Perth Airport", "Perth", "Australia", -31.94, 115.97, 480},
        {"AKL", "Auckland Airport", "Auckland", "New Zealand", -37.01, 174.79, 720},
        {"JFK", "John F. Kennedy International Airport", "New York", "United States", 40.64, -73.78, -300},
        {"IAD",
         "Washington Dulles International Airport",
         "Washington",
         "United States",
         38.94,
         -77.46,
         -300},
        {"BOS", "Logan International Airport", "Boston", "United States", 42.36, -71.01, -300},
        {"ORD", "O'Hare International Airport", "Chicago", "United States", 41.98, -87.90, -360},
        {"DFW", "Dallas/Fort Worth International Airport", "Dallas", "United States", 32.90, -97.04, -360},
        {"LAX", "Los Angeles International Airport", "Los Angeles", "United States", 33.94, -118.41, -480},
        {"SFO",
         "San Francisco International Airport",
         "San Francisco",
         "United States",
         37.62,
         -122.38,
         -480},
        {"YYZ", "Toronto Pearson International Airport", "Toronto", "Canada", 43.68, -79.63, -300},
        {"YVR", "Vancouver International Airport", "Vancouver", "Canada", 49.19, -123.18, -480},
        {"GRU", "São Paulo/Guarulhos International Airport", "São Paulo", "Brazil", -23.43, -46.47, -180},
        {"MEX", "Mexico City International Airport", "Mexico City", "Mexico", 19.44, -99.07, -360},
    };
    return list;
}

const Airport* airportOf(std::string_view code) {
    const auto found = std::find_if(
        airports().begin(), airports().end(), [&](const Airport& airport) { return airport.code == code; });
    return found == airports().end() ? nullptr : &*found;
}

std::vector<const Airport*> searchAirports(std::string_view query) {
    std::vector<const Airport*> found;
    if (query.empty()) {
        for (std::string_view code : popularCodes)
            found.push_back(airportOf(code));
        return found;
    }
    const std::string wanted = folded(query);
    for (const Airport& airport : airports())
        for (std::string_view text : {airport.code, airport.city, airport.name, airport.country})
            if (startsAWord(folded(text), wanted)) {
                found.push_back(&airport);
                break;
            }
    std::stable_partition(
        found.begin(), found.end(), [&](const Airport* airport) { return folded(airport->code) == wanted; });
    return found;
}

double distance(const Airport& from, const Airport& to) {
    constexpr double earthRadius = 6371.0;
    const double latitudes = std::sin(radians(to.latitude - from.latitude) / 2);
    const double longitudes = std::sin(radians(to.longitude - from.longitude) / 2);
    const double chord = latitudes * latitudes + std::cos(radians(from.latitude)) *
                                                     std::cos(radians(to.latitude)) * longitudes * longitudes;
    return 2 * earthRadius * std::asin(std::sqrt(chord));
}

Json airportJson(const Airport& airport) {
    return {
        {"name", airport.name}, {"city", airport.city}, {"code", airport.code}, {"country", airport.country}};
}

} // namespace ombrivane::sandbox
