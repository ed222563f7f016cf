"""conan create packaging/conan: builds the tree that it lies in. Qt is the system's, as on phones."""

import os

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain
from conan.tools.files import copy


class Ombrivane(ConanFile):
    name = "ombrivane"
    version = "0.0.38"
    description = "A flight booking that a mobile wallet embeds as one view"
    license = "MIT"
    package_type = "static-library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"view": [True, False], "kit": [True, False]}
    default_options = {"view": True, "kit": False}
    requires = (
        "libcurl/[>=7.87 <9]",
        "fmt/[>=9 <11]",
        "icu/[>=72 <76]",
        "libjpeg-turbo/[>=2.1 <4]",
        "libpng/[>=1.6 <2]",
        "nlohmann_json/[>=3.11 <4]",
        "openssl/[>=3 <4]",
        "simdjson/[>=3 <4]",
    )

    def requirements(self):
        if self.options.kit:
            self.requires("zlib/[>=1.2.13 <2]")

    def build_requirements(self):
        self.tool_requires("gettext/[>=0.21 <1]")  # msgfmt, which compiles the translations

    def export_sources(self):
        tree = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "LICENSE", "*.md"):
            copy(self, pattern, tree, self.export_sources_folder, excludes=("*/*",))
        for folder in ("cmake", "contract", "docs", "examples", "journey", "kit", "resources", "sandbox", "src", "view", "demo"):
            copy(self, f"{folder}/*", tree, self.export_sources_folder)

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["OMBRIVANE_VIEW"] = bool(self.options.view)
        toolchain.cache_variables["OMBRIVANE_TOOLS"] = bool(self.options.kit)
        toolchain.cache_variables["OMBRIVANE_TESTS"] = False
        toolchain.cache_variables["OMBRIVANE_INSTALL"] = True
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()

    def package_info(self):
        # The package's own configuration names its targets: Ombrivane::core, Ombrivane::view, Ombrivane::kit.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs.append(os.path.join("lib", "cmake", "Ombrivane"))
