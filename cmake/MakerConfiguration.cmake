# Everything that names the maker's servers. A distributor overrides these with -D.
set(NOTELOFT_WEBSITE_URL "https://www.quillfen.example/" CACHE STRING "The maker's website")
set(NOTELOFT_HELP_HOST "help.quillfen.example" CACHE STRING "Host of the help pages")
set(NOTELOFT_UPDATE_HOST "updates.quillfen.example" CACHE STRING "Host of the update feed")
set(NOTELOFT_SOCIAL_URL "https://social.quillfen.example/@quillfen" CACHE STRING "The maker's profile")
set(NOTELOFT_CONTACT_URL "https://www.quillfen.example/contact/" CACHE STRING "The maker's contact page")
