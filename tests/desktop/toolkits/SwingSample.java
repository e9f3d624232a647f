import java.awt.BorderLayout;
import java.awt.Toolkit;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import javax.swing.JCheckBoxMenuItem;
import javax.swing.JFrame;
import javax.swing.JLabel;
import javax.swing.JMenu;
import javax.swing.JMenuBar;
import javax.swing.JMenuItem;
import javax.swing.JOptionPane;
import javax.swing.JTextArea;
import javax.swing.KeyStroke;
import javax.swing.SwingUtilities;
import javax.swing.event.DocumentEvent;
import javax.swing.event.DocumentListener;

/** An application in Swing. Usage: java SwingSample.java FILE */
final class SwingSample extends JFrame implements DocumentListener {
    private final Path file;
    private final JTextArea text = new JTextArea();
    private final JLabel status = new JLabel("Ready");
    private final JMenuItem save;

    SwingSample(Path file) throws IOException {
        super("Sample");
        this.file = file;
        text.setText(Files.readString(file));
        add(text);
        add(status, BorderLayout.SOUTH);

        JMenuBar bar = new JMenuBar();
        JMenu fileMenu = menu(bar, "File");
        item(fileMenu, "Open...", 'O', () -> JOptionPane.showMessageDialog(this, "Nothing to open"));
        save = item(fileMenu, "Save", 'S', this::save);
        save.setEnabled(false);
        item(menu(bar, "Edit"), "Upper Case", 'U', () -> text.setText(text.getText().toUpperCase()));
        JCheckBoxMenuItem shown = new JCheckBoxMenuItem("Status Bar", true);
        shown.addActionListener(event -> status.setVisible(shown.isSelected()));
        menu(bar, "View").add(shown);
        setJMenuBar(bar);

        text.getDocument().addDocumentListener(this);
        setSize(400, 300);
        setDefaultCloseOperation(EXIT_ON_CLOSE);
        setVisible(true);
    }

    @Override
    public void insertUpdate(DocumentEvent event) {
        save.setEnabled(true);
    }

    @Override
    public void removeUpdate(DocumentEvent event) {
        save.setEnabled(true);
    }

    @Override
    public void changedUpdate(DocumentEvent event) {}

    private static JMenu menu(JMenuBar bar, String title) {
        return bar.add(new JMenu(title));
    }

    private static JMenuItem item(JMenu menu, String title, char key, Runnable action) {
        JMenuItem item = new JMenuItem(title);
        item.setAccelerator(KeyStroke.getKeyStroke(key, Toolkit.getDefaultToolkit().getMenuShortcutKeyMaskEx()));
        item.addActionListener(event -> action.run());
        return menu.add(item);
    }

    private void save() {
        try {
            Files.writeString(file, text.getText());
            save.setEnabled(false);
        } catch (IOException failure) {
            status.setText(failure.getMessage());
        }
    }

    public static void main(String[] arguments) {
        SwingUtilities.invokeLater(() -> {
            try {
                new SwingSample(Path.of(arguments[0]));
            } catch (IOException failure) {
                System.err.println(failure);
                System.exit(1);
            }
        });
    }
}
