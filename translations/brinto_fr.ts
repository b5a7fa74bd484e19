<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Constant</name>
    <message>
        <source>Avogadro&apos;s number, NA</source>
        <translation>Nombre d’Avogadro, NA</translation>
    </message>
    <message>
        <source>Boltzmann constant, k</source>
        <translation>Constante de Boltzmann, k</translation>
    </message>
    <message>
        <source>Molar volume, Vm</source>
        <translation>Volume molaire, Vm</translation>
    </message>
    <message>
        <source>Universal gas constant, R</source>
        <translation>Constante universelle des gaz parfaits, R</translation>
    </message>
    <message>
        <source>Standard temperature, StdT</source>
        <translation>Température normale, StdT</translation>
    </message>
    <message>
        <source>Standard pressure, StdP</source>
        <translation>Pression normale, StdP</translation>
    </message>
    <message>
        <source>Stefan-Boltzmann constant</source>
        <translation>Constante de Stefan-Boltzmann</translation>
    </message>
    <message>
        <source>Speed of light in vacuum, c</source>
        <translation>Vitesse de la lumière dans le vide, c</translation>
    </message>
    <message>
        <source>Permittivity of vacuum</source>
        <translation>Permittivité du vide</translation>
    </message>
    <message>
        <source>Permeability of vacuum</source>
        <translation>Perméabilité du vide</translation>
    </message>
    <message>
        <source>Acceleration of gravity, g</source>
        <translation>Accélération de la pesanteur, g</translation>
    </message>
    <message>
        <source>Gravitational constant, G</source>
        <translation>Constante gravitationnelle, G</translation>
    </message>
    <message>
        <source>Planck&apos;s constant, h</source>
        <translation>Constante de Planck, h</translation>
    </message>
    <message>
        <source>Dirac&apos;s constant, hbar</source>
        <translation>Constante de Planck réduite, hbar</translation>
    </message>
    <message>
        <source>Electron charge, q</source>
        <translation>Charge de l’électron, q</translation>
    </message>
    <message>
        <source>Electron rest mass, me</source>
        <translation>Masse au repos de l’électron, me</translation>
    </message>
    <message>
        <source>q/me, qme</source>
        <translation>q/me, qme</translation>
    </message>
    <message>
        <source>Proton rest mass, mp</source>
        <translation>Masse au repos du proton, mp</translation>
    </message>
    <message>
        <source>mp/me, mpme</source>
        <translation>mp/me, mpme</translation>
    </message>
    <message>
        <source>Fine structure constant</source>
        <translation>Constante de structure fine</translation>
    </message>
    <message>
        <source>Magnetic flux quantum</source>
        <translation>Quantum de flux magnétique</translation>
    </message>
    <message>
        <source>Faraday constant, F</source>
        <translation>Constante de Faraday, F</translation>
    </message>
    <message>
        <source>Rydberg constant</source>
        <translation>Constante de Rydberg</translation>
    </message>
    <message>
        <source>Bohr radius, a0</source>
        <translation>Rayon de Bohr, a0</translation>
    </message>
    <message>
        <source>Bohr magneton</source>
        <translation>Magnéton de Bohr</translation>
    </message>
    <message>
        <source>Nuclear magneton</source>
        <translation>Magnéton nucléaire</translation>
    </message>
    <message>
        <source>Photon wavelength (ch/e)</source>
        <translation>Longueur d’onde du photon (ch/e)</translation>
    </message>
    <message>
        <source>Photon frequency (e/h)</source>
        <translation>Fréquence du photon (e/h)</translation>
    </message>
    <message>
        <source>Compton wavelength</source>
        <translation>Longueur d’onde de Compton</translation>
    </message>
    <message>
        <source>Wien displacement constant, c3</source>
        <translation>Constante de Wien, c3</translation>
    </message>
    <message>
        <source>Dielectric constant</source>
        <translation>Constante diélectrique</translation>
    </message>
    <message>
        <source>SiO2 dielectric constant</source>
        <translation>Constante diélectrique du SiO2</translation>
    </message>
    <message>
        <source>Reference intensity, I0</source>
        <translation>Intensité de référence, I0</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>Digit 0</source>
        <translation>Chiffre 0</translation>
    </message>
    <message>
        <source>Digit 1</source>
        <translation>Chiffre 1</translation>
    </message>
    <message>
        <source>Digit 2</source>
        <translation>Chiffre 2</translation>
    </message>
    <message>
        <source>Digit 3</source>
        <translation>Chiffre 3</translation>
    </message>
    <message>
        <source>Digit 4</source>
        <translation>Chiffre 4</translation>
    </message>
    <message>
        <source>Digit 5</source>
        <translation>Chiffre 5</translation>
    </message>
    <message>
        <source>Digit 6</source>
        <translation>Chiffre 6</translation>
    </message>
    <message>
        <source>Digit 7</source>
        <translation>Chiffre 7</translation>
    </message>
    <message>
        <source>Digit 8</source>
        <translation>Chiffre 8</translation>
    </message>
    <message>
        <source>Digit 9</source>
        <translation>Chiffre 9</translation>
    </message>
    <message>
        <source>Hexadecimal digit A (10)</source>
        <translation>Chiffre hexadécimal A (10)</translation>
    </message>
    <message>
        <source>Hexadecimal digit B (11)</source>
        <translation>Chiffre hexadécimal B (11)</translation>
    </message>
    <message>
        <source>Hexadecimal digit C (12)</source>
        <translation>Chiffre hexadécimal C (12)</translation>
    </message>
    <message>
        <source>Hexadecimal digit D (13)</source>
        <translation>Chiffre hexadécimal D (13)</translation>
    </message>
    <message>
        <source>Hexadecimal digit E (14)</source>
        <translation>Chiffre hexadécimal E (14)</translation>
    </message>
    <message>
        <source>E (in an integer base)</source>
        <translation>E (dans une base entière)</translation>
    </message>
    <message>
        <source>Hexadecimal digit F (15)</source>
        <translation>Chiffre hexadécimal F (15)</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Séparateur décimal</translation>
    </message>
    <message>
        <source>. or ,</source>
        <translation>. ou ,</translation>
    </message>
    <message>
        <source>Decimal point (second key)</source>
        <translation>Séparateur décimal (seconde touche)</translation>
    </message>
    <message>
        <source>Enter exponent</source>
        <translation>Saisir l’exposant</translation>
    </message>
    <message>
        <source>Change sign</source>
        <translation>Changer de signe</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Enter (RPN)</source>
        <translation>Entrée (RPN)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Additionner</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Soustraire</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplier</translation>
    </message>
    <message>
        <source>* or X</source>
        <translation>* ou X</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Diviser</translation>
    </message>
    <message>
        <source>Equals: complete the calculation</source>
        <translation>Égal : terminer le calcul</translation>
    </message>
    <message>
        <source>= or Enter</source>
        <translation>= ou Entrée</translation>
    </message>
    <message>
        <source>Shift: the keys&apos; second functions</source>
        <translation>Maj : les secondes fonctions des touches</translation>
    </message>
    <message>
        <source>Show all digits, dates as numbers (toggle)</source>
        <translation>Afficher tous les chiffres, les dates en nombres (bascule)</translation>
    </message>
    <message>
        <source>Clear all: stack, registers and macro</source>
        <translation>Tout effacer : pile, registres et macro</translation>
    </message>
    <message>
        <source>Clear stack</source>
        <translation>Effacer la pile</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Clear X</source>
        <translation>Effacer X</translation>
    </message>
    <message>
        <source>Clear all (second key)</source>
        <translation>Tout effacer (seconde touche)</translation>
    </message>
    <message>
        <source>Clear stack (second key)</source>
        <translation>Effacer la pile (seconde touche)</translation>
    </message>
    <message>
        <source>Clear X (second key)</source>
        <translation>Effacer X (seconde touche)</translation>
    </message>
    <message>
        <source>Clear user, financial and statistical registers</source>
        <translation>Effacer les registres utilisateur, financiers et statistiques</translation>
    </message>
    <message>
        <source>Clear the financial registers</source>
        <translation>Effacer les registres financiers</translation>
    </message>
    <message>
        <source>Clear the statistical sums</source>
        <translation>Effacer les sommes statistiques</translation>
    </message>
    <message>
        <source>Roll the stack down</source>
        <translation>Rotation de la pile vers le bas</translation>
    </message>
    <message>
        <source>Roll the stack up</source>
        <translation>Rotation de la pile vers le haut</translation>
    </message>
    <message>
        <source>Drop X</source>
        <translation>Retirer X</translation>
    </message>
    <message>
        <source>Fill the stack with X</source>
        <translation>Remplir la pile avec X</translation>
    </message>
    <message>
        <source>Exchange X and Y</source>
        <translation>Échanger X et Y</translation>
    </message>
    <message>
        <source>Store X in a register</source>
        <translation>Stocker X dans un registre</translation>
    </message>
    <message>
        <source>Last X</source>
        <translation>Dernier X</translation>
    </message>
    <message>
        <source>Recall a register</source>
        <translation>Rappeler un registre</translation>
    </message>
    <message>
        <source>Exchange X with a register</source>
        <translation>Échanger X avec un registre</translation>
    </message>
    <message>
        <source>Open parenthesis</source>
        <translation>Parenthèse ouvrante</translation>
    </message>
    <message>
        <source>Close parenthesis</source>
        <translation>Parenthèse fermante</translation>
    </message>
    <message>
        <source>Percent of total: X as a percentage of Y</source>
        <translation>Part du total : X en pourcentage de Y</translation>
    </message>
    <message>
        <source>Percent change from Y to X</source>
        <translation>Variation en pourcentage de Y à X</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Round X to the digits shown</source>
        <translation>Arrondir X aux chiffres affichés</translation>
    </message>
    <message>
        <source>Integer part</source>
        <translation>Partie entière</translation>
    </message>
    <message>
        <source>Absolute value</source>
        <translation>Valeur absolue</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Racine carrée</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Cube root</source>
        <translation>Racine cubique</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cube</translation>
    </message>
    <message>
        <source>Power: Y raised to X</source>
        <translation>Puissance : Y puissance X</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Inverse</translation>
    </message>
    <message>
        <source>Fractional part</source>
        <translation>Partie fractionnaire</translation>
    </message>
    <message>
        <source>Remainder of Y divided by X</source>
        <translation>Reste de Y divisé par X</translation>
    </message>
    <message>
        <source>Payments at the beginning or end of periods (toggle)</source>
        <translation>Paiements en début ou en fin de période (bascule)</translation>
    </message>
    <message>
        <source>Number of payments</source>
        <translation>Nombre de paiements</translation>
    </message>
    <message>
        <source>Nominal annual interest rate, percent</source>
        <translation>Taux d’intérêt annuel nominal, en pourcentage</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Valeur actuelle</translation>
    </message>
    <message>
        <source>Payment per period</source>
        <translation>Paiement par période</translation>
    </message>
    <message>
        <source>Future value</source>
        <translation>Valeur future</translation>
    </message>
    <message>
        <source>Payments per year</source>
        <translation>Paiements par an</translation>
    </message>
    <message>
        <source>Nominal annual interest rate</source>
        <translation>Taux d’intérêt annuel nominal</translation>
    </message>
    <message>
        <source>Effective annual interest rate</source>
        <translation>Taux d’intérêt annuel effectif</translation>
    </message>
    <message>
        <source>Years times payments per year, stored in N</source>
        <translation>Années fois paiements par an, stocké dans N</translation>
    </message>
    <message>
        <source>Divide by payments per year</source>
        <translation>Diviser par les paiements par an</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coût</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Margin, percent of price</source>
        <translation>Marge, en pourcentage du prix</translation>
    </message>
    <message>
        <source>Markup, percent of cost</source>
        <translation>Majoration, en pourcentage du coût</translation>
    </message>
    <message>
        <source>Amortize a range of payments</source>
        <translation>Amortir une série de paiements</translation>
    </message>
    <message>
        <source>Amortize the next range of payments</source>
        <translation>Amortir la série de paiements suivante</translation>
    </message>
    <message>
        <source>Cash flow: append X to the cash flows</source>
        <translation>Flux : ajouter X aux flux de trésorerie</translation>
    </message>
    <message>
        <source>Times the last cash flow repeats</source>
        <translation>Répétitions du dernier flux</translation>
    </message>
    <message>
        <source>Net present value</source>
        <translation>Valeur actuelle nette</translation>
    </message>
    <message>
        <source>Internal rate of return per year</source>
        <translation>Taux de rendement interne annuel</translation>
    </message>
    <message>
        <source>Sine</source>
        <translation>Sinus</translation>
    </message>
    <message>
        <source>Cosine</source>
        <translation>Cosinus</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Arc sine</source>
        <translation>Arc sinus</translation>
    </message>
    <message>
        <source>Arc cosine</source>
        <translation>Arc cosinus</translation>
    </message>
    <message>
        <source>Arc tangent</source>
        <translation>Arc tangente</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Hyperbolic prefix for the next function</source>
        <translation>Préfixe hyperbolique pour la fonction suivante</translation>
    </message>
    <message>
        <source>Natural logarithm</source>
        <translation>Logarithme népérien</translation>
    </message>
    <message>
        <source>Common logarithm</source>
        <translation>Logarithme décimal</translation>
    </message>
    <message>
        <source>Natural exponential</source>
        <translation>Exponentielle</translation>
    </message>
    <message>
        <source>Power of ten</source>
        <translation>Puissance de dix</translation>
    </message>
    <message>
        <source>Angles in degrees</source>
        <translation>Angles en degrés</translation>
    </message>
    <message>
        <source>Angles in radians</source>
        <translation>Angles en radians</translation>
    </message>
    <message>
        <source>Angles in grads</source>
        <translation>Angles en grades</translation>
    </message>
    <message>
        <source>Radians to degrees</source>
        <translation>Radians en degrés</translation>
    </message>
    <message>
        <source>Degrees to radians</source>
        <translation>Degrés en radians</translation>
    </message>
    <message>
        <source>Polar to rectangular</source>
        <translation>Polaire en rectangulaire</translation>
    </message>
    <message>
        <source>Rectangular to polar</source>
        <translation>Rectangulaire en polaire</translation>
    </message>
    <message>
        <source>Hours to hours.minutes-seconds (h.mmss)</source>
        <translation>Heures en heures.minutes-secondes (h.mmss)</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to hours</source>
        <translation>Heures.minutes-secondes (h.mmss) en heures</translation>
    </message>
    <message>
        <source>Add the point (X, Y) to the sums</source>
        <translation>Ajouter le point (X, Y) aux sommes</translation>
    </message>
    <message>
        <source>Remove the point (X, Y) from the sums</source>
        <translation>Retirer le point (X, Y) des sommes</translation>
    </message>
    <message>
        <source>Sum of x</source>
        <translation>Somme des x</translation>
    </message>
    <message>
        <source>Sum of x squared</source>
        <translation>Somme des carrés de x</translation>
    </message>
    <message>
        <source>Sum of y</source>
        <translation>Somme des y</translation>
    </message>
    <message>
        <source>Sum of y squared</source>
        <translation>Somme des carrés de y</translation>
    </message>
    <message>
        <source>Sum of the products xy</source>
        <translation>Somme des produits xy</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Nombre de points</translation>
    </message>
    <message>
        <source>Mean of x</source>
        <translation>Moyenne de x</translation>
    </message>
    <message>
        <source>Mean of x weighted by y</source>
        <translation>Moyenne de x pondérée par y</translation>
    </message>
    <message>
        <source>Mean of y</source>
        <translation>Moyenne de y</translation>
    </message>
    <message>
        <source>Estimated x for the y in X; r in Y</source>
        <translation>x estimé pour le y dans X ; r dans Y</translation>
    </message>
    <message>
        <source>Estimated y for the x in X; slope in Y</source>
        <translation>y estimé pour le x dans X ; pente dans Y</translation>
    </message>
    <message>
        <source>Random number</source>
        <translation>Nombre aléatoire</translation>
    </message>
    <message>
        <source>Factorial</source>
        <translation>Factorielle</translation>
    </message>
    <message>
        <source>Logarithm of the gamma function</source>
        <translation>Logarithme de la fonction gamma</translation>
    </message>
    <message>
        <source>Sample standard deviation</source>
        <translation>Écart type de l’échantillon</translation>
    </message>
    <message>
        <source>Population standard deviation</source>
        <translation>Écart type de la population</translation>
    </message>
    <message>
        <source>Combinations of X items from Y</source>
        <translation>Combinaisons de X éléments parmi Y</translation>
    </message>
    <message>
        <source>Permutations of X items from Y</source>
        <translation>Arrangements de X éléments parmi Y</translation>
    </message>
    <message>
        <source>Binary entry and display</source>
        <translation>Saisie et affichage binaires</translation>
    </message>
    <message>
        <source>Octal entry and display</source>
        <translation>Saisie et affichage octaux</translation>
    </message>
    <message>
        <source>Decimal integer entry and display</source>
        <translation>Saisie et affichage entiers décimaux</translation>
    </message>
    <message>
        <source>Hexadecimal entry and display</source>
        <translation>Saisie et affichage hexadécimaux</translation>
    </message>
    <message>
        <source>Bitwise AND</source>
        <translation>ET bit à bit</translation>
    </message>
    <message>
        <source>Bitwise OR</source>
        <translation>OU bit à bit</translation>
    </message>
    <message>
        <source>Bitwise exclusive OR</source>
        <translation>OU exclusif bit à bit</translation>
    </message>
    <message>
        <source>Bitwise NOT</source>
        <translation>NON bit à bit</translation>
    </message>
    <message>
        <source>Shift Y left by X bits</source>
        <translation>Décaler Y de X bits vers la gauche</translation>
    </message>
    <message>
        <source>Shift Y right by X bits (logical)</source>
        <translation>Décaler Y de X bits vers la droite (logique)</translation>
    </message>
    <message>
        <source>Arithmetic shift right, keeping the sign</source>
        <translation>Décalage arithmétique à droite, signe conservé</translation>
    </message>
    <message>
        <source>Rotate Y right by X bits</source>
        <translation>Rotation de Y de X bits vers la droite</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Pieds</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Milles</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Mètres</translation>
    </message>
    <message>
        <source>Square inches</source>
        <translation>Pouces carrés</translation>
    </message>
    <message>
        <source>Square feet</source>
        <translation>Pieds carrés</translation>
    </message>
    <message>
        <source>Square miles</source>
        <translation>Milles carrés</translation>
    </message>
    <message>
        <source>Square meters</source>
        <translation>Mètres carrés</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Livres</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Onces</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Kilogrammes</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Grammes</translation>
    </message>
    <message>
        <source>Inches per second</source>
        <translation>Pouces par seconde</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Pieds par seconde</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Mètres par seconde</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Milles par heure</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Kilomètres par heure</translation>
    </message>
    <message>
        <source>Centimeters per second</source>
        <translation>Centimètres par seconde</translation>
    </message>
    <message>
        <source>US gallons</source>
        <translation>Gallons US</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Millilitres</translation>
    </message>
    <message>
        <source>Liters</source>
        <translation>Litres</translation>
    </message>
    <message>
        <source>US fluid ounces</source>
        <translation>Onces liquides US</translation>
    </message>
    <message>
        <source>Degrees Celsius</source>
        <translation>Degrés Celsius</translation>
    </message>
    <message>
        <source>Degrees Fahrenheit</source>
        <translation>Degrés Fahrenheit</translation>
    </message>
    <message>
        <source>X-th root of Y</source>
        <translation>Racine X-ième de Y</translation>
    </message>
    <message>
        <source>8-bit unsigned integer</source>
        <translation>Entier 8 bits non signé</translation>
    </message>
    <message>
        <source>8-bit signed integer</source>
        <translation>Entier 8 bits signé</translation>
    </message>
    <message>
        <source>16-bit unsigned integer</source>
        <translation>Entier 16 bits non signé</translation>
    </message>
    <message>
        <source>16-bit signed integer</source>
        <translation>Entier 16 bits signé</translation>
    </message>
    <message>
        <source>32-bit unsigned integer</source>
        <translation>Entier 32 bits non signé</translation>
    </message>
    <message>
        <source>32-bit signed integer</source>
        <translation>Entier 32 bits signé</translation>
    </message>
    <message>
        <source>Standard number format</source>
        <translation>Format numérique standard</translation>
    </message>
    <message>
        <source>Scientific format: digits follow</source>
        <translation>Format scientifique : chiffres à suivre</translation>
    </message>
    <message>
        <source>Engineering format: digits follow</source>
        <translation>Format ingénieur : chiffres à suivre</translation>
    </message>
    <message>
        <source>Largest whole number not above X</source>
        <translation>Plus grand entier non supérieur à X</translation>
    </message>
    <message>
        <source>Smallest whole number not below X</source>
        <translation>Plus petit entier non inférieur à X</translation>
    </message>
    <message>
        <source>Change sign of an integer</source>
        <translation>Changer le signe d’un entier</translation>
    </message>
    <message>
        <source>X as an integer of the default format</source>
        <translation>X en entier du format par défaut</translation>
    </message>
    <message>
        <source>Integer add</source>
        <translation>Addition entière</translation>
    </message>
    <message>
        <source>Integer subtract</source>
        <translation>Soustraction entière</translation>
    </message>
    <message>
        <source>Integer multiply</source>
        <translation>Multiplication entière</translation>
    </message>
    <message>
        <source>Integer divide</source>
        <translation>Division entière</translation>
    </message>
    <message>
        <source>Fixed format: digits follow</source>
        <translation>Format fixe : chiffres à suivre</translation>
    </message>
    <message>
        <source>Clear the date registers and duration settings</source>
        <translation>Effacer les registres de date et les réglages de durée</translation>
    </message>
    <message>
        <source>The current date and time</source>
        <translation>La date et l’heure actuelles</translation>
    </message>
    <message>
        <source>Date: X typed as Y.MMDD becomes a date</source>
        <translation>Date : X saisi en A.MMJJ devient une date</translation>
    </message>
    <message>
        <source>Time: X typed as H.MMSS becomes a clock time</source>
        <translation>Heure : X saisi en H.MMSS devient une heure</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Années</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semaines</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to frames</source>
        <translation>Heures.minutes-secondes (h.mmss) en images</translation>
    </message>
    <message>
        <source>Days per year</source>
        <translation>Jours par an</translation>
    </message>
    <message>
        <source>Days per month</source>
        <translation>Jours par mois</translation>
    </message>
    <message>
        <source>Days per week</source>
        <translation>Jours par semaine</translation>
    </message>
    <message>
        <source>Hours per day</source>
        <translation>Heures par jour</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>Date part of a date and time</source>
        <translation>Partie date d’une date et heure</translation>
    </message>
    <message>
        <source>Time part of a date and time</source>
        <translation>Partie heure d’une date et heure</translation>
    </message>
    <message>
        <source>Fraction of a duration in the next smaller unit</source>
        <translation>Fraction d’une durée dans l’unité inférieure</translation>
    </message>
    <message>
        <source>Enter (second key)</source>
        <translation>Entrée (seconde touche)</translation>
    </message>
    <message>
        <source>Rotate the three lowest levels</source>
        <translation>Rotation des trois niveaux inférieurs</translation>
    </message>
    <message>
        <source>Over: a copy of Y onto the stack</source>
        <translation>Over : une copie de Y sur la pile</translation>
    </message>
    <message>
        <source>Simple input: in the order entered</source>
        <translation>Saisie simple : dans l’ordre de saisie</translation>
    </message>
    <message>
        <source>Precedence input: × and ÷ before + and −</source>
        <translation>Saisie avec priorité : × et ÷ avant + et −</translation>
    </message>
    <message>
        <source>RPN input: operands first</source>
        <translation>Saisie RPN : opérandes d’abord</translation>
    </message>
    <message>
        <source>Record a macro</source>
        <translation>Enregistrer une macro</translation>
    </message>
    <message>
        <source>Play the macro</source>
        <translation>Exécuter la macro</translation>
    </message>
    <message>
        <source>Pause the macro for input</source>
        <translation>Suspendre la macro pour une saisie</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Yards</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Kilomètres</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Milles marins</translation>
    </message>
    <message>
        <source>Square millimeters</source>
        <translation>Millimètres carrés</translation>
    </message>
    <message>
        <source>Square centimeters</source>
        <translation>Centimètres carrés</translation>
    </message>
    <message>
        <source>Square kilometers</source>
        <translation>Kilomètres carrés</translation>
    </message>
    <message>
        <source>Square yards</source>
        <translation>Yards carrés</translation>
    </message>
    <message>
        <source>Acres</source>
        <translation>Acres</translation>
    </message>
    <message>
        <source>Short tons (2,000 pounds)</source>
        <translation>Tonnes courtes (2 000 livres)</translation>
    </message>
    <message>
        <source>Milligrams</source>
        <translation>Milligrammes</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>Cubic meters</source>
        <translation>Mètres cubes</translation>
    </message>
    <message>
        <source>Cubic centimeters</source>
        <translation>Centimètres cubes</translation>
    </message>
    <message>
        <source>Cubic yards</source>
        <translation>Yards cubes</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Pieds cubes</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Pouces cubes</translation>
    </message>
    <message>
        <source>US quarts</source>
        <translation>Quarts US</translation>
    </message>
    <message>
        <source>US pints</source>
        <translation>Pintes US</translation>
    </message>
    <message>
        <source>US cups</source>
        <translation>Tasses US</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cuillères à soupe</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cuillères à café</translation>
    </message>
    <message>
        <source>Imperial gallons</source>
        <translation>Gallons impériaux</translation>
    </message>
    <message>
        <source>Imperial fluid ounces</source>
        <translation>Onces liquides impériales</translation>
    </message>
    <message>
        <source>Amortize a range of payments (second key)</source>
        <translation>Amortir une série de paiements (seconde touche)</translation>
    </message>
    <message>
        <source>Recall one of 100 registers</source>
        <translation>Rappeler l’un des 100 registres</translation>
    </message>
    <message>
        <source>Exchange X with one of 100 registers</source>
        <translation>Échanger X avec l’un des 100 registres</translation>
    </message>
    <message>
        <source>Store X in one of 100 registers</source>
        <translation>Stocker X dans l’un des 100 registres</translation>
    </message>
    <message>
        <source>First shift</source>
        <translation>Première touche Maj</translation>
    </message>
    <message>
        <source>Second shift</source>
        <translation>Seconde touche Maj</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>No Function</source>
        <translation>Aucune fonction</translation>
    </message>
    <message>
        <source>The Keyboard dialog can be used to assign a function to this button.</source>
        <translation>La boîte de dialogue Clavier permet d’attribuer une fonction à cette touche.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>This operation will clear the operating stack and all user, financial, statistical, and date registers, and the keyboard macro.</source>
        <translation>Cette opération efface la pile de calcul, tous les registres utilisateur, financiers, statistiques et de date, ainsi que la macro clavier.</translation>
    </message>
    <message>
        <source>Nothing to Undo</source>
        <translation>Rien à annuler</translation>
    </message>
    <message>
        <source>There are no operations to be undone.</source>
        <translation>Il n’y a aucune opération à annuler.</translation>
    </message>
    <message>
        <source>Nothing to Redo</source>
        <translation>Rien à rétablir</translation>
    </message>
    <message>
        <source>There are no undo actions to be redone.</source>
        <translation>Il n’y a aucune annulation à rétablir.</translation>
    </message>
    <message>
        <source>No Macro</source>
        <translation>Aucune macro</translation>
    </message>
    <message>
        <source>A macro must be recorded before it can be played back.</source>
        <translation>Une macro doit être enregistrée avant de pouvoir être exécutée.</translation>
    </message>
    <message>
        <source>Macro Length Exceeded</source>
        <translation>Macro trop longue</translation>
    </message>
    <message>
        <source>The macro length has been exceeded and the last key could not be recorded.</source>
        <translation>La longueur maximale de la macro est atteinte : la dernière touche n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Pas un nombre</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Hors limites</translation>
    </message>
    <message>
        <source>Must be above 0</source>
        <translation>Doit être supérieur à 0</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Un nombre entier de 1 à 32767</translation>
    </message>
    <message>
        <source>A whole number from 1 up</source>
        <translation>Un nombre entier à partir de 1</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>impossible d’examiner %1 : %2</translation>
    </message>
    <message>
        <source>cannot create %1: its folder does not exist</source>
        <translation>impossible de créer %1 : son dossier n’existe pas</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>impossible de créer %1 : %2</translation>
    </message>
    <message>
        <source>cannot follow the link %1: %2</source>
        <translation>impossible de suivre le lien %1 : %2</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossible d’ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database</source>
        <translation>%1 n’est pas une base de données Brinto</translation>
    </message>
    <message>
        <source>%1 is locked by another program; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 est verrouillé par un autre programme ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database; it was left as it is; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 n’est pas une base de données Brinto ; il est laissé tel quel ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 est endommagé (%2) et ne peut pas être mis de côté ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; starting on defaults</source>
        <translation>%1 était endommagé (%2) ; conservé sous %3 ; démarrage avec les valeurs par défaut</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 était endommagé (%2) ; conservé sous %3 ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>cannot save the calculator to %1 (%2); the file keeps its last save</source>
        <translation>impossible d’enregistrer la calculatrice dans %1 (%2) ; le fichier garde le dernier enregistrement</translation>
    </message>
    <message>
        <source>cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved</source>
        <translation>impossible de créer le dossier %1 : %2 ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>legacy settings not imported: %1</source>
        <translation>anciens réglages non importés : %1</translation>
    </message>
    <message>
        <source>cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will be saved</source>
        <translation>impossible de charger la calculatrice depuis %1 (%2) ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1 is read-only; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 est en lecture seule ; la calculatrice fonctionne en mémoire et rien ne sera enregistré</translation>
    </message>
    <message>
        <source>%1 is locked by another program (%2)</source>
        <translation>%1 est verrouillé par un autre programme (%2)</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Default Color</source>
        <translation>Couleur par défaut</translation>
    </message>
    <message>
        <source>Default Grayscale</source>
        <translation>Gris par défaut</translation>
    </message>
    <message>
        <source>Default B&amp;W</source>
        <translation>Noir et blanc par défaut</translation>
    </message>
    <message>
        <source>Original Color</source>
        <translation>Couleur d’origine</translation>
    </message>
    <message>
        <source>Original Grayscale</source>
        <translation>Gris d’origine</translation>
    </message>
    <message>
        <source>Original B&amp;W</source>
        <translation>Noir et blanc d’origine</translation>
    </message>
    <message>
        <source>Light Background</source>
        <translation>Fond clair</translation>
    </message>
    <message>
        <source>Dark Background</source>
        <translation>Fond sombre</translation>
    </message>
</context>
<context>
    <name>Ui</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Niveau %1</translation>
    </message>
    <message>
        <source>Choose an input method to determine how Brinto performs calculations:

- Simple specifies an infix order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 = yields the result of 25

- Precedence also specifies an infix order where binary operations are performed before multiplication and division which are performed before addition and subtraction reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17

- RPN (Reverse Polish Notation) specifies a postfix order where the operands are entered before the operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17

- The input method can be specified  at any time in the Preferences dialog

- See the Comparison of Input Methods section of the User Guide for more details</source>
        <translation>Choisissez une méthode de saisie qui détermine comment Brinto calcule :

- Simple est un ordre infixe où les opérations sont effectuées dans l’ordre de saisie ; par exemple, 2 + 3 * 5 = donne 25

- Priorité est aussi un ordre infixe où les opérations binaires passent avant la multiplication et la division, elles-mêmes avant l’addition et la soustraction, ce qui réduit le besoin de parenthèses ; par exemple, 2 + 3 * 5 = donne 17

- RPN (notation polonaise inverse) est un ordre postfixe où les opérandes sont saisis avant l’opération ; par exemple, 2 Entrée 3 + 5 * donne 25 et 2 Entrée 3 Entrée 5 * + donne 17

- La méthode de saisie peut être changée à tout moment dans les Préférences

- Voir la section « Comparison of Input Methods » du guide de l’utilisateur (en anglais) pour plus de détails</translation>
    </message>
    <message>
        <source>Input Method</source>
        <translation>Méthode de saisie</translation>
    </message>
    <message>
        <source>&amp;Input:</source>
        <translation>&amp;Saisie :</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>Precedence</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Find Key</source>
        <translation>Chercher une touche</translation>
    </message>
    <message>
        <source>&amp;Key name:</source>
        <translation>Nom de la &amp;touche :</translation>
    </message>
    <message>
        <source>sqrt, x^2, pv, Square root...</source>
        <translation>sqrt, x^2, pv, Racine carrée...</translation>
    </message>
    <message>
        <source>&amp;Matching keys:</source>
        <translation>Touches &amp;correspondantes :</translation>
    </message>
    <message>
        <source>&amp;Press</source>
        <translation>&amp;Appuyer</translation>
    </message>
    <message>
        <source>Type the name of a key.</source>
        <translation>Tapez le nom d&apos;une touche.</translation>
    </message>
    <message>
        <source>No key is called &quot;%1&quot;.</source>
        <translation>Aucune touche ne s’appelle « %1 ».</translation>
    </message>
    <message>
        <source>No function</source>
        <translation>Aucune fonction</translation>
    </message>
    <message>
        <source> (key: %1)</source>
        <translation> (touche : %1)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Basic</source>
        <translation>&amp;Simple</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Avancé</translation>
    </message>
    <message>
        <source>&amp;Stack...</source>
        <translation>&amp;Pile...</translation>
    </message>
    <message>
        <source>&amp;User Registers...</source>
        <translation>&amp;Registres utilisateur...</translation>
    </message>
    <message>
        <source>&amp;Constants...</source>
        <translation>&amp;Constantes...</translation>
    </message>
    <message>
        <source>&amp;TVM...</source>
        <translation>&amp;Valeur temps (TVM)...</translation>
    </message>
    <message>
        <source>Amorti&amp;zation...</source>
        <translation>A&amp;mortissement...</translation>
    </message>
    <message>
        <source>Cash &amp;Flow...</source>
        <translation>&amp;Flux de trésorerie...</translation>
    </message>
    <message>
        <source>Stat&amp;istical...</source>
        <translation>S&amp;tatistiques...</translation>
    </message>
    <message>
        <source>Enter &amp;Date...</source>
        <translation>Saisir une &amp;date...</translation>
    </message>
    <message>
        <source>Enter Ti&amp;me...</source>
        <translation>Saisir une &amp;heure...</translation>
    </message>
    <message>
        <source>Du&amp;rations...</source>
        <translation>D&amp;urées...</translation>
    </message>
    <message>
        <source>&amp;History Tape</source>
        <translation>&amp;Bande de calcul</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Find Key...</source>
        <translation>Chercher une &amp;touche...</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Maj</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <translation>&amp;Clavier...</translation>
    </message>
    <message>
        <source>&amp;About Brinto...</source>
        <translation>À p&amp;ropos de Brinto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non enregistré : %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Financial</source>
        <translation>Financier</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Scientifique</translation>
    </message>
    <message>
        <source>Statistical</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Programmer</source>
        <translation>Programmeur</translation>
    </message>
    <message>
        <source>Conversion 1</source>
        <translation>Conversion 1</translation>
    </message>
    <message>
        <source>Conversion 2</source>
        <translation>Conversion 2</translation>
    </message>
    <message>
        <source>Date &amp;&amp; Time</source>
        <translation>Date &amp;&amp; heure</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Gén</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sci</source>
        <translation>Sci</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Stat</translation>
    </message>
    <message>
        <source>Prog</source>
        <translation>Prog</translation>
    </message>
    <message>
        <source>Conv 1</source>
        <translation>Conv 1</translation>
    </message>
    <message>
        <source>Conv 2</source>
        <translation>Conv 2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Conv
1</source>
        <translation>Conv
1</translation>
    </message>
    <message>
        <source>Conv
2</source>
        <translation>Conv
2</translation>
    </message>
    <message>
        <source>The calculator could not be saved.</source>
        <translation>La calculatrice n&apos;a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>History Tape</source>
        <translation>Bande de calcul</translation>
    </message>
    <message>
        <source>Tape lines</source>
        <translation>Lignes de la bande</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Double click or Return recalls a result into X; Ctrl+C copies it</source>
        <translation>Un double-clic ou Entrée rappelle un résultat dans X ; Ctrl+C le copie</translation>
    </message>
    <message>
        <source>&amp;Recall</source>
        <translation>&amp;Rappeler</translation>
    </message>
    <message>
        <source>Recall the selected result into X</source>
        <translation>Rappeler le résultat choisi dans X</translation>
    </message>
    <message>
        <source>Copy the selected result</source>
        <translation>Copier le résultat choisi</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Enregistrer sous...</translation>
    </message>
    <message>
        <source>Save the tape as text or CSV</source>
        <translation>Enregistrer la bande en texte ou en CSV</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>E&amp;ffacer</translation>
    </message>
    <message>
        <source>Clear the tape</source>
        <translation>Effacer la bande</translation>
    </message>
    <message>
        <source>The tape could not be saved to %1: %2</source>
        <translation>La bande n’a pas pu être enregistrée dans %1 : %2</translation>
    </message>
    <message>
        <source>Save Tape</source>
        <translation>Enregistrer la bande</translation>
    </message>
    <message>
        <source>Text (*.txt);;CSV (*.csv)</source>
        <translation>Texte (*.txt);;CSV (*.csv)</translation>
    </message>
    <message>
        <source>Color Chooser</source>
        <translation>Choix de couleur</translation>
    </message>
    <message>
        <source>Red:</source>
        <translation>Rouge :</translation>
    </message>
    <message>
        <source>Green:</source>
        <translation>Vert :</translation>
    </message>
    <message>
        <source>Blue:</source>
        <translation>Bleu :</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Customize Colors</source>
        <translation>Personnaliser les couleurs</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Standard:</source>
        <translation>Standard :</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nombre :</translation>
    </message>
    <message>
        <source>Register:</source>
        <translation>Registre :</translation>
    </message>
    <message>
        <source>Clear:</source>
        <translation>Effacement :</translation>
    </message>
    <message>
        <source>%1 text color</source>
        <translation>Couleur du texte %1</translation>
    </message>
    <message>
        <source>%1 background color</source>
        <translation>Couleur du fond %1</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Constantes</translation>
    </message>
    <message>
        <source>Days per year (dpy):</source>
        <translation>Jours par an (dpy) :</translation>
    </message>
    <message>
        <source>Days per month (dpm):</source>
        <translation>Jours par mois (dpm) :</translation>
    </message>
    <message>
        <source>Days per week (dpw):</source>
        <translation>Jours par semaine (dpw) :</translation>
    </message>
    <message>
        <source>Hours per day (hpd):</source>
        <translation>Heures par jour (hpd) :</translation>
    </message>
    <message>
        <source>Frames per second (fps):</source>
        <translation>Images par seconde (fps) :</translation>
    </message>
    <message>
        <source>Enter Date</source>
        <translation>Saisir une date</translation>
    </message>
    <message>
        <source>Enter Time</source>
        <translation>Saisir une heure</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Tens of minutes</source>
        <translation>Dizaines de minutes</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>&amp;Hour:</source>
        <translation>&amp;Heure :</translation>
    </message>
    <message>
        <source>&amp;Minute:</source>
        <translation>&amp;Minute :</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Durées</translation>
    </message>
    <message>
        <source>About Brinto</source>
        <translation>À propos de Brinto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The user guide is in English.</source>
        <translation>Le guide de l&apos;utilisateur est en anglais.</translation>
    </message>
    <message>
        <source>No Cash Flow Entries</source>
        <translation>Aucun flux de trésorerie</translation>
    </message>
    <message>
        <source>There are no cash flow entries to display.</source>
        <translation>Il n&apos;y a aucun flux de trésorerie à afficher.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;User guide missing&lt;/h2&gt;&lt;p&gt;The user guide was not built into this copy of Brinto, so help cannot be shown.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Guide de l’utilisateur absent&lt;/h2&gt;&lt;p&gt;Le guide de l’utilisateur n’a pas été intégré à cette copie de Brinto : l’aide ne peut pas être affichée.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Brinto Help</source>
        <translation>Aide de Brinto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Touche %1 : %2</translation>
    </message>
    <message>
        <source>no function</source>
        <translation>aucune fonction</translation>
    </message>
    <message>
        <source>Customize Keyboard</source>
        <translation>Personnaliser le clavier</translation>
    </message>
    <message>
        <source>User Keys:</source>
        <translation>Touches utilisateur :</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Shifted</source>
        <translation>Décalé</translation>
    </message>
    <message>
        <source>Available Keys:</source>
        <translation>Touches disponibles :</translation>
    </message>
    <message>
        <source>Available keyboard</source>
        <translation>Clavier disponible</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Amortization chart</source>
        <translation>Graphique d’amortissement</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal by year</source>
        <translation>Solde après chaque paiement ; intérêts et capital par année</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal of each payment</source>
        <translation>Solde après chaque paiement ; intérêts et capital de chaque paiement</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Paiement</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Intérêts</translation>
    </message>
    <message>
        <source>Principal</source>
        <translation>Capital</translation>
    </message>
    <message>
        <source>(by year)</source>
        <translation>(par année)</translation>
    </message>
    <message>
        <source>(by payment)</source>
        <translation>(par paiement)</translation>
    </message>
    <message>
        <source>Cash-flow diagram</source>
        <translation>Diagramme des flux de trésorerie</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Ingénieur</translation>
    </message>
    <message>
        <source>RPN</source>
        <translation>RPN</translation>
    </message>
    <message>
        <source>8-bit unsigned</source>
        <translation>8 bits non signé</translation>
    </message>
    <message>
        <source>8-bit signed</source>
        <translation>8 bits signé</translation>
    </message>
    <message>
        <source>16-bit unsigned</source>
        <translation>16 bits non signé</translation>
    </message>
    <message>
        <source>16-bit signed</source>
        <translation>16 bits signé</translation>
    </message>
    <message>
        <source>32-bit unsigned</source>
        <translation>32 bits non signé</translation>
    </message>
    <message>
        <source>32-bit signed</source>
        <translation>32 bits signé</translation>
    </message>
    <message>
        <source>Sticky</source>
        <translation>Persistant</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Shift keyboard</source>
        <translation>Basculer le clavier</translation>
    </message>
    <message>
        <source>Repeat last key</source>
        <translation>Répéter la dernière touche</translation>
    </message>
    <message>
        <source>Open last form</source>
        <translation>Ouvrir le dernier formulaire</translation>
    </message>
    <message>
        <source>Play macro</source>
        <translation>Exécuter la macro</translation>
    </message>
    <message>
        <source>100 Registers</source>
        <translation>100 registres</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Date longue</translation>
    </message>
    <message>
        <source>Backspace Drops</source>
        <translation>Retour arrière supprime X</translation>
    </message>
    <message>
        <source>Comma Radix</source>
        <translation>Virgule décimale</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Digits:</source>
        <translation>Chiffres :</translation>
    </message>
    <message>
        <source>How many digits the number format shows; All: every digit</source>
        <translation>Nombre de chiffres affichés par le format ; Tout : tous les chiffres</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Saisie :</translation>
    </message>
    <message>
        <source>Stack:</source>
        <translation>Pile :</translation>
    </message>
    <message>
        <source>How many levels the operating stack has</source>
        <translation>Nombre de niveaux de la pile de calcul</translation>
    </message>
    <message>
        <source>Integer:</source>
        <translation>Entier :</translation>
    </message>
    <message>
        <source>Shift:</source>
        <translation>Maj :</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Action :</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>User Registers</source>
        <translation>Registres utilisateur</translation>
    </message>
    <message>
        <source>TVM</source>
        <translation>Valeur temps (TVM)</translation>
    </message>
    <message>
        <source>Amortization</source>
        <translation>Amortissement</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Flux de trésorerie</translation>
    </message>
    <message>
        <source>Basic also</source>
        <translation>Aussi en simple</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <source>Quick Switch</source>
        <translation>Changement rapide</translation>
    </message>
    <message>
        <source>Colors...</source>
        <translation>Couleurs...</translation>
    </message>
    <message>
        <source>Tap:</source>
        <translation>Toucher :</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Thème :</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Lignes :</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Police :</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordure :</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Au-dessus</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dedans</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Swapped</source>
        <translation>Inversé</translation>
    </message>
    <message>
        <source>Zoomed</source>
        <translation>Agrandi</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Premier plan</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Très forte</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Afficher :</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Touches :</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Active :</translation>
    </message>
    <message>
        <source>Shadow:</source>
        <translation>Ombre :</translation>
    </message>
    <message>
        <source>Time Value of Money</source>
        <translation>Valeur temps de l&apos;argent</translation>
    </message>
    <message>
        <source>Statistical Registers</source>
        <translation>Registres statistiques</translation>
    </message>
    <message>
        <source>Cash Flow Entries</source>
        <translation>Flux de trésorerie</translation>
    </message>
    <message>
        <source>%1: %2 unchanged</source>
        <translation>%1 : %2 inchangé</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>Schedule...</source>
        <translation>Échéancier...</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Résoudre</translation>
    </message>
    <message>
        <source>Solve %1</source>
        <translation>Résoudre %1</translation>
    </message>
    <message>
        <source>Amortization Schedule</source>
        <translation>Tableau d&apos;amortissement</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Paiements</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Int</translation>
    </message>
    <message>
        <source>Prin</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Bal</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exporter en CSV...</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Listed up to payment %1 of %2: the amortization keys reach no further.</source>
        <translation>Liste jusqu’au paiement %1 sur %2 : les touches d’amortissement ne vont pas plus loin.</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message>
        <source>The schedule could not be written to %1.</source>
        <translation>L’échéancier n’a pas pu être écrit dans %1.</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date &amp; heure</translation>
    </message>
    <message>
        <source>Stack levels</source>
        <translation>Niveaux de la pile</translation>
    </message>
    <message>
        <source>Try again, or quit without saving what changed since the last save?</source>
        <translation>Réessayer, ou quitter sans enregistrer les modifications depuis le dernier enregistrement ?</translation>
    </message>
    <message>
        <source>No payments to chart</source>
        <translation>Aucun paiement à représenter</translation>
    </message>
    <message>
        <source>Balance stays at %1 over 1 payment</source>
        <translation>Le solde reste à %1 sur 1 paiement</translation>
    </message>
    <message>
        <source>Balance stays at %1 over %2 payments</source>
        <translation>Le solde reste à %1 sur %2 paiements</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over 1 payment</source>
        <translation>Le solde baisse de %1 à %2 sur 1 paiement</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over %3 payments</source>
        <translation>Le solde baisse de %1 à %2 sur %3 paiements</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over 1 payment</source>
        <translation>Le solde monte de %1 à %2 sur 1 paiement</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over %3 payments</source>
        <translation>Le solde monte de %1 à %2 sur %3 paiements</translation>
    </message>
    <message>
        <source>Cash flows at period 0: %1 paid, %2 received</source>
        <translation>Flux à la période 0 : %1 payé, %2 reçu</translation>
    </message>
    <message>
        <source>Cash flows over periods 0 to %1: %2 paid, %3 received</source>
        <translation>Flux sur les périodes 0 à %1 : %2 payé, %3 reçu</translation>
    </message>
</context>
</TS>
