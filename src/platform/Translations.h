#pragma once

// Makes the running application know the plurals of our texts ("1 mot", "2 mots"). Without them
// texts show both forms at once. Once an application, after it is made.
void loadTranslations();
